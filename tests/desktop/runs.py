"""Runs that do not succeed: cancelled while pictures are made or while a server is silent, and failed with a log to
read. Files made before that are whole, and the window still works."""

import os
import socket

from harness import expect, expect_within, files_below, wait_for_file
from publishing import choose_server, see_failure, start_with_password, upload_log


def run(harness):
    cancel_creation(harness)
    write_server_list(harness)
    cancel_before_silent_server(harness)
    fail_with_wrong_password(harness)


def cancel_creation(harness):
    """Cancels the creation of so many and so large pictures that it takes longer than the key presses."""
    os.makedirs(harness.path("many"))
    for number in range(300):
        os.link(harness.path("a.jpg"), harness.path("many", f"{number:03}.jpg"))
    harness.make_project("many.gpj", "many")
    with open(harness.path("many.gpj"), "r+b") as file:
        larger = file.read().replace(b'HEIGHT="300"', b'HEIGHT="3000"')
        file.seek(0)
        file.write(larger)
    screen = harness.screen
    with harness.project("many.gpj"):
        screen.press("ctrl+g")
        screen.wait_for_window("Create Gallery")
        screen.press("Return")
        screen.wait_for_window("Creating Gallery")
        screen.press("ctrl+g", "ctrl+n")  # commands must wait
        screen.press("Escape")
        screen.wait_for_window("Cancel Request")
        screen.press("Escape")  # and this means No
        screen.wait_for_no_window("Cancel Request")
        screen.wait_for_window("Creating Gallery")
        wait_for_file(harness.path("gallery", "Images", "005.jpg.jpg"))
        confirm_cancel(screen, "Creating Gallery")
        screen.wait_for_window("Creation cancelled")
        screen.press("Return")
        screen.wait_for_no_window("Creating Gallery")
    made = files_below(harness.path("gallery"))
    expect(False, "index.htm" in made, "index after a cancelled run")
    for name in made:
        picture = harness.read("gallery", name)
        expect(True, name.endswith(".jpg") and picture.endswith(b"\xff\xd9"), f"{name} is a whole picture")


def confirm_cancel(screen, title):
    screen.wait_for_window(title)
    screen.press("Escape")
    screen.wait_for_window("Cancel Request")
    screen.press("alt+y")
    screen.wait_for_no_window("Cancel Request")


def write_server_list(harness):
    """Writes the list with the server that the program then reads."""
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    with open(harness.path("config", "vantorium", "vantorium.pub"), "w", newline="\r\n") as file:
        file.write('[PUBLISH]\nServerCount="1"\nPreferredServer="1"\nServerName1="Mine"\nServerURL1="127.0.0.1"\n'
                   'UserName1="me"\nIndexFile1="web/index.htm"\nTimeOut1="0"\nJumpTo1=""\n')


def publish(screen, password, user="me"):
    choose_server(screen)
    screen.wait_for_window("Select Web Server")
    screen.write("alt+s", user)
    start_with_password(screen, password)


def cancel_before_silent_server(harness):
    """The server accepts the connection and never sends anything."""
    screen = harness.screen
    with socket.create_server(("127.0.0.1", 0)) as server:
        with harness.project("p.gpj", ftp_port=server.getsockname()[1]):
            publish(screen, "secret")
            confirm_cancel(screen, "Publishing Gallery")
            screen.wait_for_window("Creation cancelled")
            screen.press("Return")
            screen.wait_for_no_window("Publishing Gallery")


def fail_with_wrong_password(harness):
    screen = harness.screen
    with harness.ftp_server("proftpd") as server:
        with harness.project("p.gpj", ftp_port=server["port"]):
            publish(screen, "wrong", server["user"])
            see_failure(screen)
            screen.press("alt+s")
            wait_for_file(harness.path("opened"))
            screen.press("Escape")
            screen.wait_for_no_window("Publishing Gallery")
        expect([], files_below(server["root"]), "files on the server")
    expect_within("vantorium/ftplog.txt", harness.text("opened"), "what was opened")
    log = upload_log(harness)
    expect_within("530", log, "log")
    expect(False, "wrong" in log, "password in the log")
