"""A gallery is published and a folder uploaded to a server that the user first adds to the list. The server then holds
the same files as after the batch program has sent them."""

import os

from harness import expect, expect_equal_folders, expect_within, files_below
from publishing import add_first_server, start_with_password, upload_log, wait_for_end


def run(harness):
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    with harness.ftp_server("vsftpd") as server:
        with harness.project("p.gpj", ftp_port=server["port"]):
            publish(harness.screen, server)
            upload(harness.screen, server)
        check_log(harness, server)
        check_published(harness, server)
        check_uploaded(harness, server)


def publish(screen, server):
    add_first_server(screen, server)
    start_with_password(screen, server["password"])
    wait_for_end(screen, "Publishing Gallery", os.path.join(server["root"], "web", "index.htm"))


def upload(screen, server):
    """Uploads the home's folder "bin" into a folder beside the gallery."""
    screen.press("ctrl+g")
    screen.wait_for_window("Create Gallery")
    screen.press("alt+f")
    screen.write("alt+s", "C:\\bin")
    screen.press("alt+e", "Tab", "space")
    screen.wait_for_window("Select Web Server")
    screen.write("alt+p", "site")
    start_with_password(screen, server["password"])
    wait_for_end(screen, "Uploading Folder", os.path.join(server["root"], "site", "gio"))


def check_log(harness, server):
    log = upload_log(harness)
    expect_within("End of Upload Log", log, "log")
    expect(False, server["password"] in log, "password in the log")


def to_server(harness, server, command, what, remote):
    with open(harness.path("password"), "w") as file:
        file.write(server["password"])
    harness.batch(command, harness.path(what), "--server", "127.0.0.1", "--port", str(server["port"]), "--user",
               server["user"], "--password-file", harness.path("password"), "--remote", remote)


def check_published(harness, server):
    to_server(harness, server, "publish", "p.gpj", "twin/index.htm")
    expect(8, len(files_below(os.path.join(server["root"], "twin"))), "files of the gallery")
    expect_equal_folders(os.path.join(server["root"], "twin"), os.path.join(server["root"], "web"))


def check_uploaded(harness, server):
    expect_equal_folders(harness.path("bin"), os.path.join(server["root"], "site"))
    to_server(harness, server, "upload", "bin", "twinsite")
    expect_equal_folders(os.path.join(server["root"], "twinsite"), os.path.join(server["root"], "site"))
