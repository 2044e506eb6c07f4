#include "ui/model/main/BrowserTable.h"

#include "env/RuntimeFailure.h"

namespace vantorium::ui {
namespace {

bool Write(const std::vector<env::Browser>& browsers, const std::filesystem::path& file) {
  try {
    std::error_code ignored;  // the write fails if the folder is missing
    std::filesystem::create_directories(file.parent_path(), ignored);
    env::WriteBrowsers(browsers, file);
    return true;
  } catch (const env::RuntimeFailure&) {
    return false;
  }
}

}  // namespace

bool EditBrowsers(std::vector<env::Browser>& browsers, const std::filesystem::path& preferencesFile,
                  BrowserTableHost& host, BrowserEntryDialog& dialog, env::MessageBoxPort& boxes) {
  BrowserList list(browsers, dialog, boxes);
  host.ShowBrowserList(list);
  browsers = list.Entries();
  host.ShowBrowserMenus(RebuildBrowserMenus(browsers));
  const env::BusyMainWindow busy(host);
  host.SetStatusText("Writing file \"vantorium.ini\"...");
  const bool written = Write(browsers, preferencesFile);
  host.SetStatusText("");
  return written;
}

}  // namespace vantorium::ui
