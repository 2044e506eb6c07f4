"""A gallery is published to a server that demands TLS, in passive mode. Its certificate is unknown: refused, nothing is
sent; accepted, it is not asked about again, in this window or the next. A server with another certificate is refused
until the user forgets the first one."""

import os
import shutil

from desk import expect, expect_equal_folders, expect_within, files_below
from publishing import add_first_server, choose_server, see_failure, start_with_password, upload_log, wait_for_end


def run(desk):
    desk.make_project("p.gpj", "a.jpg", "b.jpg")
    desk.batch("create", desk.path("p.gpj"), desk.path("created", "index.htm"))
    with desk.ftp_server("vsftpd", "tls") as server:
        with desk.project("p.gpj", ftp_port=server["port"]):
            add_server(desk.screen, server)
            refuse_certificate(desk, server)
            publish(desk, server, answer="alt+y")
            expect_within(f'Fingerprint1="{server["fingerprint"]}"', server_list(desk), "list of servers")
            publish(desk, server)
        with desk.project("p.gpj", ftp_port=server["port"]):
            publish(desk, server)
        check_log(desk, server)
    with desk.ftp_server("vsftpd", "tls") as other:
        with desk.project("p.gpj", ftp_port=other["port"]):
            meet_changed_certificate(desk, other)
            publish(desk, other, "alt+g", answer="alt+y")  # forgets the certificate
        expect_within(f'Fingerprint1="{other["fingerprint"]}"', server_list(desk), "list of servers")


def server_list(desk):
    return desk.text("config", "vantorium", "vantorium.pub")


def add_server(screen, server):
    add_first_server(screen, server)
    screen.press("alt+i", "alt+e")  # passive and encrypted
    start_with_password(screen, server["password"])


def refuse_certificate(desk, server):
    desk.screen.wait_for_window("Unknown Certificate")
    desk.screen.press("Return")  # the answer is no unless chosen otherwise
    expect_refusal(desk, server)
    expect(False, "Fingerprint" in server_list(desk), "a certificate that was refused is remembered")


def meet_changed_certificate(desk, server):
    screen = desk.screen
    choose_server(screen)
    screen.wait_for_window("Select Web Server")
    start_with_password(screen, server["password"])
    expect_refusal(desk, server)


def expect_refusal(desk, server):
    see_failure(desk.screen)
    desk.screen.press("Escape")
    desk.screen.wait_for_no_window("Publishing Gallery")
    desk.screen.wait_for_window("p.gpj")
    expect([], files_below(server["root"]), "files on a server that is not trusted")
    log = upload_log(desk)
    expect_within("\n234 ", log, "log")  # the answer to the wish for encryption
    expect(False, "\n331 " in log, "a name was sent to a server that is not trusted")


def publish(desk, server, *keys, answer=None):
    """Publishes after these keys in the list of servers. Without an answer nothing is asked about the certificate."""
    screen = desk.screen
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
    expect_equal_folders(desk.path("created"), published)


def check_log(desk, server):
    log = upload_log(desk)
    for reply in ("PROT now Private", "Entering Extended Passive Mode", "End of Upload Log"):
        expect_within(reply, log, "log")
    expect(False, server["password"] in log, "password in the log")
