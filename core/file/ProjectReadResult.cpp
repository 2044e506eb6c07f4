#include "core/file/ProjectReadResult.h"

namespace vantorium::core {

const char* ReasonOf(ReadResult result) {
  switch (result) {
    case ReadResult::NoProject:
      return "The File does not contain a Gallery Project Description.";
    case ReadResult::NoGallery:
      return "The File does not contain a Gallery Description.";
    case ReadResult::NoLayout:
      return "No Gallery Layout has been specified.";
    case ReadResult::InvalidThumbnailIndex:
      return "Invalid Thumbnail Description Index.";
    case ReadResult::NoThumbnailPage:
      return "No Thumbnail Page Format specified.";
    case ReadResult::NoArrangement:
      return "ARRANGEMENT?";
    case ReadResult::NoPageLinks:
      return "No Page Links specified.";
    case ReadResult::Complete:
    case ReadResult::ImageRefused:
      break;
  }
  return "";
}

}  // namespace vantorium::core
