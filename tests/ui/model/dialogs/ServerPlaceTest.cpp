#include "ui/model/dialogs/ServerPlace.h"

#include <gtest/gtest.h>

namespace vantorium::ui {

void PrintTo(const ServerPlace& place, std::ostream* stream) {
  *stream << place.host << " and " << place.path;
}

namespace {

TEST(ServerPlace, IsSplitAtTheFirstSlash) {
  const std::pair<std::string, ServerPlace> cases[] = {
      {"ftp.example.org/gallery/index.htm", {"ftp.example.org", "gallery/index.htm"}},
      {"ftp.example.org/index.htm", {"ftp.example.org", "index.htm"}},
      {"ftp.example.org/gallery/", {"ftp.example.org", "gallery/"}},
      {"ftp.example.org/", {"ftp.example.org", ""}},
      {"127.0.0.1/a b/c:d@e", {"127.0.0.1", "a b/c:d@e"}},
      {"my_host-1/x", {"my_host-1", "x"}},
      {"::1/x", {"::1", "x"}},
      {"[2001:DB8::7]/a:b/x", {"2001:DB8::7", "a:b/x"}},
      {"b\xC3\xBC"
       "cher.example/\xC3\xA4",
       {"b\xC3\xBC"
        "cher.example",
        "\xC3\xA4"}}};
  for (const auto& [typed, place] : cases) EXPECT_EQ(ReadServerPlace(typed), place) << typed;
}

TEST(ServerPlace, MayHaveBackslashesDoubleSlashesAndAScheme) {
  const ServerPlace place = {"host", "a/b/index.htm"};
  for (const char* typed : {"host\\a\\b\\index.htm", "host//a///b/index.htm", "ftp://host/a/b/index.htm",
                            "FTP://host/a/b/index.htm", "ftp:\\\\host\\a/b/index.htm"}) {
    EXPECT_EQ(ReadServerPlace(typed), place) << typed;
  }
}

TEST(ServerPlace, IsInvalidWithoutAHostAndASlash) {
  for (const char* typed : {"", " ", "/", "//", "/gallery/index.htm", "\\gallery", "host", "gallery.htm", "ftp://",
                            "ftp:///a", "ftp://host", "../index.htm", "./a", "-host/a", ".host/a"}) {
    EXPECT_EQ(ReadServerPlace(typed), std::nullopt) << typed;
  }
}

TEST(ServerPlace, IsInvalidIfItDoesNotBeginWithAHost) {
  for (const char* typed : {"http://host/a", "sftp://host/a", "me@host/a", "me:secret@host/a", "host:2121/a",
                            "C:\\web\\index.htm", "C:/web/index.htm", "my host/a", " host/a", "host?/a", "[host]/a",
                            "[]/a", "[::1/a", "::1]/a", "[::1]:21/a", "::g/a"}) {
    EXPECT_EQ(ReadServerPlace(typed), std::nullopt) << typed;
  }
}

TEST(ServerPlace, IsInvalidWithAControlCharacter) {
  for (const std::string& typed : {std::string("host/a\r\nDELE b"), std::string("host/a\n"), std::string("host/a\tb"),
                                   std::string("ho\rst/a"), std::string("host/a\0b", 8), std::string("host/a\x7F")}) {
    EXPECT_EQ(ReadServerPlace(typed), std::nullopt) << typed;
  }
}

}  // namespace
}  // namespace vantorium::ui
