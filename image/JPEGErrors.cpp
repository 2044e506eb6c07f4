#include "image/JPEGErrors.h"

#include <jerror.h>

namespace vantorium::image {
namespace {

// Unknown versions, stray bytes between segments and the like are not damage: the picture is still complete.
bool MeansDamage(int warning) {
  switch (warning) {
    case JWRN_ARITH_BAD_CODE:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_MUST_RESYNC:
      return true;
    default:
      return false;
  }
}

}  // namespace

JPEGErrors::JPEGErrors() {
  jpeg_std_error(&record_.manager);
  record_.manager.error_exit = OnError;
  record_.manager.emit_message = OnMessage;
  record_.manager.output_message = [](j_common_ptr) {};
}

bool JPEGErrors::ForgiveUnknownMarker() {
  if (!failed_ || record_.manager.msg_code != JERR_UNKNOWN_MARKER) return false;
  failed_ = false;
  return true;
}

void JPEGErrors::OnError(j_common_ptr codec) {
  auto* record = reinterpret_cast<Record*>(codec->err);
  record->manager.format_message(codec, record->text);
  std::longjmp(record->jump, 1);
}

void JPEGErrors::OnMessage(j_common_ptr codec, int level) {
  auto* record = reinterpret_cast<Record*>(codec->err);
  if (level >= 0) return;
  if (MeansDamage(record->manager.msg_code)) record->damaged = true;
  if (record->manager.msg_code == JWRN_JPEG_EOF) record->endedEarly = true;
}

// The only target of longjmp. It holds no objects, so no destructor can be skipped.
bool JPEGErrors::RunGuarded(void (*work)(void*), void* context) {
  if (failed_) return false;
  failed_ = true;
  if (setjmp(record_.jump) != 0) return false;
  work(context);
  failed_ = false;
  return true;
}

}  // namespace vantorium::image
