"""A gallery is published to a server that demands TLS, in passive mode. Its certificate is unknown: refused, nothing is
sent; accepted, it is not asked about again, in this window or the next. A server with another certificate is refused
until the user forgets the first one."""

import os
import shutil

from harness import expect, expect_equal_folders, expect_within, files_below
from publishing import add_first_server, choose_server, see_failure, start_with_password, upload_log, wait_for_end


def run(harness):
    harness.make_project("p.gpj", "a.jpg", "b.jpg")
    harness.batch("create", harness.path("p.gpj"), harness.path("created", "index.htm"))
    with harness.ftp_server("vsftpd", "tls") as server:
        with harness.project("p.gpj", ftp_port=server["port"]):
            add_server(harness.screen, server)
            refuse_certificate(harness, server)
            publish(harness, server, answer="alt+y")
            expect_within(f'Fingerprint1="{server["fingerprint"]}"', server_list(harness), "list of servers")
            publish(harness, server)
        with harness.project("p.gpj", ftp_port=server["port"]):
            publish(harness, server)
        check_log(harness, server)
    with harness.ftp_server("vsftpd", "tls") as other:
        with harness.project("p.gpj", ftp_port=other["port"]):
            meet_changed_certificate(harness, other)
            publish(harness, other, "alt+g", answer="alt+y")  # forgets the certificate
        expect_within(f'Fingerprint1="{other["fingerprint"]}"', server_list(harness), "list of servers")


def server_list(harness):
    return harness.text("config", "vantorium", "vantorium.pub")


def add_server(screen, server):
    add_first_server(screen, server)
    screen.press("alt+i", "alt+e")  # passive and encrypted
    start_with_password(screen, server["password"])


def refuse_certificate(harness, server):
    harness.screen.wait_for_window("Unknown Certificate")
    harness.screen.press("Return")  # the answer is no unless chosen otherwise
    expect_refusal(harness, server)
    expect(False, "Fingerprint" in server_list(harness), "a certificate that was refused is remembered")


def meet_changed_certificate(harness, server):
    screen = harness.screen
    choose_server(screen)
    screen.wait_for_window("Select Web Server")
    start_with_password(screen, server["password"])
    expect_refusal(harness, server)


def expect_refusal(harness, server):
    see_failure(harness.screen)
    harness.screen.press("Escape")
    harness.screen.wait_for_no_window("Publishing Gallery")
    harness.screen.wait_for_window("p.gpj")
    expect([], files_below(server["root"]), "files on a server that is not trusted")
    log = upload_log(harness)
    expect_within("\n234 ", log, "log")  # the answer to the wish for encryption
    expect(False, "\n331 " in log, "a name was sent to a server that is not trusted")


def publish(harness, server, *keys, answer=None):
    """Publishes after these keys in the list of servers. Without an answer nothing is asked about the certificate."""
    screen = harness.screen
    published = os.path.join(server["root"], "web")
    shutil.rmtree(published, ignore_errors=True)
    choose_server(screen)
    screen.wait_for_window("Select Web Server")
    screen.press(*keys)
    start_with_password(screen, server["password"])
    if answer:
        screen.wait_for_window("Unknown Certificate")
        screen.press(answer)
        screen.wait_for_no_window("Unknown Certificate")
    wait_for_end(screen, "Publishing Gallery", os.path.join(published, "index.htm"))
    expect_equal_folders(harness.path("created"), published)


def check_log(harness, server):
    log = upload_log(harness)
    for reply in ("PROT now Private", "Entering Extended Passive Mode", "End of Upload Log"):
        expect_within(reply, log, "log")
    expect(False, server["password"] in log, "password in the log")
