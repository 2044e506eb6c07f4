#include "ui/main/UprightQuestion.h"

#include <QTimer>
#include <chrono>

namespace vantorium::ui {
namespace {

// Until it is tried again to ask a user who is busy.
constexpr std::chrono::milliseconds kPause(200);

}  // namespace

UprightQuestion::UprightQuestion(const Parts& parts, QObject* parent)
    : QObject(parent), parts_(parts), offer_(parts.project, parts.paths) {
  worker_.setMaxThreadCount(1);
}

UprightQuestion::~UprightQuestion() {
  stop_.request_stop();
  worker_.clear();
  worker_.waitForDone();
}

void UprightQuestion::ForgetProject() {
  stop_.request_stop();
  worker_.clear();
  stop_ = std::stop_source();
  offer_.ForgetProject();
}

void UprightQuestion::AfterAdding() {
  auto search = offer_.AfterAdding();
  if (!search) return;
  worker_.start([this, search = std::move(*search), stop = stop_.get_token()] {
    if (!FindsFirstLying(search, stop)) return;
    QMetaObject::invokeMethod(
        this, [this, stop] { AskWhenPossible(stop); }, Qt::QueuedConnection);
  });
}

void UprightQuestion::AskWhenPossible(const std::stop_token& stop) {
  if (stop.stop_requested()) return;
  if (!parts_.mayAsk()) return QTimer::singleShot(kPause, this, [this, stop] { AskWhenPossible(stop); });
  if (offer_.Ask(parts_.boxes)) emit Accepted();
}

}  // namespace vantorium::ui
