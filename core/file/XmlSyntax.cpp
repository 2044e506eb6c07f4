#include "core/file/XmlSyntax.h"

#include "core/file/XmlText.h"
#include "env/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

namespace vantorium::core {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// All non-ASCII characters are accepted in names; which of them XML allows does not matter here.
bool BeginsName(char byte) {
  return env::IsAsciiLetter(byte) || byte == '_' || byte == ':' || static_cast<unsigned char>(byte) >= 0x80;
}
bool ContinuesName(char byte) {
  return BeginsName(byte) || env::IsAsciiDigit(byte) || byte == '-' || byte == '.';
}

/// Whether `name`, the text between "&" and ";", is a reference that needs no declaration.
bool IsReference(std::string_view name) {
  constexpr std::array<std::string_view, 5> kEntities = {"lt", "gt", "amp", "quot", "apos"};
  if (std::ranges::count(kEntities, name) > 0) return true;
  if (!name.starts_with('#')) return false;
  name.remove_prefix(1);
  const bool hexadecimal = name.starts_with('x');
  if (hexadecimal) name.remove_prefix(1);
  std::uint32_t character = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), character, hexadecimal ? 16 : 10);
  return error == std::errc() && end == name.data() + name.size() && character <= 0x10FFFF &&
         IsXmlCharacter(static_cast<std::int32_t>(character));
}

bool HoldsOnlySoundReferences(std::string_view text) {
  for (auto at = text.find('&'); at != std::string_view::npos; at = text.find('&', at)) {
    const auto end = text.find_first_of(";&", at + 1);
    const bool closed = end != std::string_view::npos && text[end] == ';';
    if (!closed || !IsReference(text.substr(at + 1, end - at - 1))) return false;
    at = end;
  }
  return true;
}

struct Attribute {
  std::string_view name;
  std::string_view value;
};

bool HasDuplicates(std::vector<Attribute>& attributes) {
  std::ranges::sort(attributes, {}, &Attribute::name);
  return std::ranges::adjacent_find(attributes, {}, &Attribute::name) != attributes.end();
}

bool IsVersion(std::string_view value) {
  return value.size() > 2 && value.starts_with("1.") &&
         value.find_first_not_of("0123456789", 2) == std::string_view::npos;
}

bool IsEncodingName(std::string_view value) {
  return !value.empty() && env::IsAsciiLetter(value.front()) && std::ranges::all_of(value, [](char byte) {
    return ContinuesName(byte) && byte != ':' && static_cast<unsigned char>(byte) < 0x80;
  });
}

/// Whether these are the attributes of an XML declaration: the version, then optionally the others in order.
bool IsDeclaration(const std::vector<Attribute>& attributes) {
  auto next = attributes.begin();
  const auto passes = [&](std::string_view name, bool (*isValue)(std::string_view)) {
    if (next == attributes.end() || next->name != name || !isValue(next->value)) return false;
    ++next;
    return true;
  };
  if (!passes("version", IsVersion)) return false;
  passes("encoding", IsEncodingName);
  passes("standalone", [](std::string_view value) { return value == "yes" || value == "no"; });
  return next == attributes.end();
}

// pugixml reads much that is not XML, so a document is scanned first. expat would do so in half the lines, but takes
// more than twice the time, buffers a tag of any length, and with an external DTD passes undeclared entities in
// attributes.

/// Scans a document from beginning to end. Each step consumes what it names and returns whether it was well-formed.
class Scanner {
 public:
  Scanner(std::string_view text, const XmlLimits& limits) : rest_(text), limits_(limits) {}

  bool Document() {
    if (!Declaration() || !Misc() || !DocumentType() || !Misc() || !StartTag()) return false;
    while (!open_.empty()) {
      if (!Content()) return false;
    }
    return Misc() && rest_.empty();
  }

 private:
  bool Take(std::string_view token) {
    if (!rest_.starts_with(token)) return false;
    rest_.remove_prefix(token.size());
    return true;
  }

  bool TakeBlanks() {
    const auto end = std::min(rest_.find_first_not_of(kBlanks), rest_.size());
    rest_.remove_prefix(end);
    return end > 0;
  }

  /// Returns the text before `end`, and consumes both.
  std::optional<std::string_view> TakeThrough(std::string_view end) {
    const auto at = rest_.find(end);
    if (at == std::string_view::npos) return std::nullopt;
    const std::string_view content = rest_.substr(0, at);
    rest_.remove_prefix(at + end.size());
    return content;
  }

  std::string_view TakeName() {
    if (rest_.empty() || !BeginsName(rest_.front())) return {};
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), ContinuesName);
    const std::string_view name(rest_.begin(), end);
    rest_.remove_prefix(name.size());
    return name;
  }

  std::optional<Attribute> TakeAttribute() {
    const std::string_view name = TakeName();
    TakeBlanks();
    if (name.empty() || !Take("=")) return std::nullopt;
    TakeBlanks();
    const std::string_view quote = rest_.substr(0, 1);
    if ((quote != "\"" && quote != "'") || !Take(quote)) return std::nullopt;
    const auto value = TakeThrough(quote);
    const bool sound = value && value->size() <= limits_.attributeBytes && value->find('<') == std::string_view::npos &&
                       HoldsOnlySoundReferences(*value);
    return sound ? std::optional<Attribute>({name, *value}) : std::nullopt;
  }

  /// Fills attributes_ up to `end` or `otherEnd`, one of which must follow them.
  bool TakeAttributes(std::string_view end, std::string_view otherEnd) {
    attributes_.clear();
    while (true) {
      const bool apart = TakeBlanks();
      if (rest_.starts_with(end) || rest_.starts_with(otherEnd)) return true;
      const auto attribute = apart ? TakeAttribute() : std::nullopt;
      if (!attribute) return false;
      attributes_.push_back(*attribute);
    }
  }

  bool Declaration() {
    if (!rest_.starts_with("<?xml") || rest_.substr(5, 1).find_first_of(kBlanks) != 0) return true;
    Take("<?xml");
    return TakeAttributes("?>", "?>") && Take("?>") && IsDeclaration(attributes_);
  }

  /// Consumes the white space, comments and processing instructions around the document element ("Misc" in XML 1.0).
  bool Misc() {
    while (true) {
      TakeBlanks();
      if (rest_.starts_with("<!--")) {
        if (!Comment()) return false;
      } else if (rest_.starts_with("<?")) {
        if (!Instruction()) return false;
      } else {
        return true;
      }
    }
  }

  /// Allows an external identifier at most: internal declarations enable entity attacks.
  bool DocumentType() {
    if (!Take("<!DOCTYPE")) return true;
    if (!TakeBlanks() || TakeName().empty()) return false;
    const bool apart = TakeBlanks();
    const std::string_view keyword = TakeName();
    if (!keyword.empty()) {
      if (!apart || (keyword != "SYSTEM" && keyword != "PUBLIC")) return false;
      const int literals = keyword == "PUBLIC" ? 2 : 1;
      for (int literal = 0; literal < literals; ++literal) {
        if (!TakeBlanks() || !QuotedText()) return false;
      }
      TakeBlanks();
    }
    return Take(">");
  }

  bool QuotedText() {
    const std::string_view quote = rest_.substr(0, 1);
    return (quote == "\"" || quote == "'") && Take(quote) && TakeThrough(quote).has_value();
  }

  bool Comment() {
    Take("<!--");
    return TakeThrough("--").has_value() && Take(">");
  }

  bool Instruction() {
    Take("<?");
    const std::string_view target = TakeName();
    const bool reserved =
        target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' && (target[2] | 0x20) == 'l';
    if (target.empty() || reserved) return false;
    return rest_.starts_with("?>") ? Take("?>") : TakeBlanks() && TakeThrough("?>").has_value();
  }

  bool StartTag() {
    if (!Take("<")) return false;
    const std::string_view name = TakeName();
    if (name.empty() || !TakeAttributes(">", "/>") || HasDuplicates(attributes_)) return false;
    if (Take("/>")) return true;
    open_.push_back(name);
    return Take(">") && open_.size() <= limits_.depth;
  }

  bool EndTag() {
    Take("</");
    if (TakeName() != open_.back()) return false;
    open_.pop_back();
    TakeBlanks();
    return Take(">");
  }

  bool Text() {
    const std::string_view text = rest_.substr(0, rest_.find('<'));
    if (text.size() == rest_.size()) return false;  // no end tag follows
    rest_.remove_prefix(text.size());
    return text.find("]]>") == std::string_view::npos && HoldsOnlySoundReferences(text);
  }

  /// One piece of an element's content.
  bool Content() {
    if (++pieces_ > limits_.pieces) return false;
    if (!rest_.starts_with('<')) return Text();
    if (rest_.starts_with("</")) return EndTag();
    if (rest_.starts_with("<!--")) return Comment();
    if (rest_.starts_with("<?")) return Instruction();
    if (Take("<![CDATA[")) return TakeThrough("]]>").has_value();
    return StartTag();
  }

  std::string_view rest_;
  const XmlLimits& limits_;
  std::vector<std::string_view> open_;
  std::vector<Attribute> attributes_;
  std::size_t pieces_ = 0;
};

}  // namespace

bool IsWellFormedXml(std::string_view text, const XmlLimits& limits) {
  return IsXmlText(text) && Scanner(text, limits).Document();
}

}  // namespace vantorium::core
