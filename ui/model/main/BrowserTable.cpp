#include "ui/model/main/BrowserTable.h"

#include "env/RuntimeFailure.h"

namespace vantorium {
namespace {

bool Write(const std::vector<Browser>& browsers, const std::filesystem::path& file) {
  try {
    std::error_code ignored;  // the write fails if the folder is missing
    std::filesystem::create_directories(file.parent_path(), ignored);
    WriteBrowsers(browsers, file);
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

}  // namespace

bool EditBrowsers(std::vector<Browser>& browsers, const std::filesystem::path& preferencesFile, BrowserTableHost& host,
                  BrowserEntryDialog& dialog, MessageBoxPort& boxes) {
  BrowserList list(browsers, dialog, boxes);
  host.ShowBrowserList(list);
  browsers = list.Entries();
  host.ShowBrowserMenus(RebuildBrowserMenus(browsers));
  const BusyMainWindow busy(host);
  host.SetStatusText("Writing file \"vantorium.ini\"...");
  const bool written = Write(browsers, preferencesFile);
  host.SetStatusText("");
  return written;
}

}  // namespace vantorium
