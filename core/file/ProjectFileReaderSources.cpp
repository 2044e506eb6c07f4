#include "core/file/ProjectFileReaderSections.h"
#include "core/file/XmlNode.h"
#include "env/Text.h"

namespace vantorium::core {
namespace {

constexpr char kSource[] = "SOURCE";

/// Calls `visit` with the attribute and the path of each photograph that has no place.
template <typename Visit>
void VisitSourcesWithoutPlace(pugi::xml_node images, const env::PathMap& paths, const Visit& visit) {
  for (auto node = NextElement(images, images, "IMAGE"); node; node = NextElement(node, images, "IMAGE")) {
    const std::string path(env::WithoutFilePrefix(AttributeOf(node, kSource).value_or("")));
    if (!paths.ToNative(path)) visit(node.attribute(kSource), path);
  }
}

}  // namespace

std::vector<std::string> SourcesWithoutPlace(pugi::xml_node images, const env::PathMap& paths) {
  std::vector<std::string> sources;
  VisitSourcesWithoutPlace(images, paths,
                           [&](pugi::xml_attribute /*source*/, const std::string& path) { sources.push_back(path); });
  return sources;
}

bool ReplaceSources(pugi::xml_node images, const std::vector<MovedFolder>& folders, const env::PathMap& paths) {
  bool replaced = false;
  VisitSourcesWithoutPlace(images, paths, [&](pugi::xml_attribute source, const std::string& path) {
    const std::string moved = Moved(path, folders);
    replaced |= moved != path;
    source.set_value(moved.c_str());
  });
  return replaced;
}

}  // namespace vantorium::core
