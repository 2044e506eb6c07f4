#include "core/generation/LinkHazards.h"

#include "env/Text.h"

#include <algorithm>
#include <array>

namespace vantorium::generation {
namespace {

/// The character references that browsers accept without a semicolon, in their order.
constexpr auto kShortReferences = std::to_array<std::string_view>(
    {"AElig",  "AMP",    "Aacute", "Acirc",  "Agrave", "Aring",  "Atilde", "Auml",   "COPY",   "Ccedil", "ETH",
     "Eacute", "Ecirc",  "Egrave", "Euml",   "GT",     "Iacute", "Icirc",  "Igrave", "Iuml",   "LT",     "Ntilde",
     "Oacute", "Ocirc",  "Ograve", "Oslash", "Otilde", "Ouml",   "QUOT",   "REG",    "THORN",  "Uacute", "Ucirc",
     "Ugrave", "Uuml",   "Yacute", "aacute", "acirc",  "acute",  "aelig",  "agrave", "amp",    "aring",  "atilde",
     "auml",   "brvbar", "ccedil", "cedil",  "cent",   "copy",   "curren", "deg",    "divide", "eacute", "ecirc",
     "egrave", "eth",    "euml",   "frac12", "frac14", "frac34", "gt",     "iacute", "icirc",  "iexcl",  "igrave",
     "iquest", "iuml",   "laquo",  "lt",     "macr",   "micro",  "middot", "nbsp",   "not",    "ntilde", "oacute",
     "ocirc",  "ograve", "ordf",   "ordm",   "oslash", "otilde", "ouml",   "para",   "plusmn", "pound",  "quot",
     "raquo",  "reg",    "sect",   "shy",    "sup1",   "sup2",   "sup3",   "szlig",  "thorn",  "times",  "uacute",
     "ucirc",  "ugrave", "uml",    "uuml",   "yacute", "yen",    "yuml"});

bool IsLetterOrDigit(char c) {
  return env::IsAsciiLetter(c) || env::IsAsciiDigit(c);
}

bool IsBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

/// Returns the length of the character reference that browsers would see at the start of `text`, which begins with "&";
/// 0 if they see none. In attributes, a letter, a digit or "=" after the short form makes it plain text. A name with a
/// semicolon counts even if no character has it.
std::size_t LengthOfReference(std::string_view text) {
  const auto* const end = std::find_if_not(text.begin() + 1, text.end(), IsLetterOrDigit);
  const auto length = static_cast<std::size_t>(end - text.begin());
  const std::string_view name = text.substr(1, length - 1);
  if (name.empty()) return 0;
  if (end != text.end() && *end == ';') return length + 1;
  if (end != text.end() && *end == '=') return 0;
  return std::ranges::binary_search(kShortReferences, name) ? length : 0;
}

/// Returns the character reference that browsers would see in `name`, or an empty text.
std::string_view CharacterReference(std::string_view name) {
  for (auto at = name.find('&'); at != std::string_view::npos; at = name.find('&', at + 1)) {
    if (const std::size_t length = LengthOfReference(name.substr(at)); length > 0) return name.substr(at, length);
  }
  return {};
}

/// Whether the name begins like a URL of another protocol, such as "Evening:1.htm".
bool BeginsWithScheme(std::string_view name) {
  const auto isOfScheme = [](char c) { return IsLetterOrDigit(c) || c == '+' || c == '-' || c == '.'; };
  const auto* const end = std::ranges::find_if_not(name, isOfScheme);
  return end != name.end() && *end == ':' && env::IsAsciiLetter(name.front());
}

std::string WhyCharactersFail(std::string_view name) {
  if (name.find('"') != std::string_view::npos) return "a quotation mark ends a link";
  if (name.find('#') != std::string_view::npos) return "in a link, what follows \"#\" is a place in a page";
  if (name.find('?') != std::string_view::npos) return "in a link, what follows \"?\" is not part of the name";
  if (name.find('%') != std::string_view::npos) return "in a link, \"%\" begins a coded character";
  if (name.find_first_of("\t\n\r") != std::string_view::npos) return "tabs and line breaks are left out of a link";
  if (const std::string_view reference = CharacterReference(name); !reference.empty()) {
    return "in a page, \"" + std::string(reference) + "\" stands for another character";
  }
  return {};
}

}  // namespace

std::string WhyLinkFails(std::string_view name, LinkStart start) {
  if (name.empty()) return {};
  if (std::string reason = WhyCharactersFail(name); !reason.empty()) return reason;
  if (IsBlank(name.back())) return "a blank at its end is left out of a link";
  if (start == LinkStart::Folder) return {};
  if (IsBlank(name.front())) return "a blank at its beginning is left out of a link";
  if (BeginsWithScheme(name)) return "in a link, what precedes \":\" is a protocol";
  if (start == LinkStart::NameInRefresh && name.front() == '\'') return "an apostrophe at its beginning ends a link";
  return {};
}

}  // namespace vantorium::generation
