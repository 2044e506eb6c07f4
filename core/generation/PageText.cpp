#include "core/generation/PageText.h"

namespace vantorium::generation {

void PageText::UserCode(std::string_view place, std::string_view code, std::string_view indent) {
  Format("{}<!-- BEGIN USER DEFINED {} -->", indent, place);
  Line(code);
  Format("{}<!-- END USER DEFINED {} -->", indent, place);
}

}  // namespace vantorium::generation
