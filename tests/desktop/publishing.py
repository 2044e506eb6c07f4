"""Publishing in the window, as several journeys do it."""

from harness import wait_for_file


def choose_server(screen):
    """Opens the list of servers for a gallery."""
    screen.press("ctrl+g")
    screen.wait_for_window("Create Gallery")
    screen.press("alt+u", "Tab", "Tab", "space")  # the button after the destination


def add_first_server(screen, server):
    """Adds a server to the list, which does not exist yet; the gallery's folder is "web"."""
    choose_server(screen)
    screen.wait_for_window("File Error")
    screen.press("Return")
    screen.wait_for_window("Select Web Server")
    screen.press("alt+n")
    screen.wait_for_window("New Web Server")
    screen.type("Mine")
    screen.press("Return")
    screen.wait_for_window("Select Web Server")
    screen.write("alt+u", "127.0.0.1")
    screen.write("alt+s", server["user"])
    screen.write("alt+p", "web")


def start_with_password(screen, password):
    """Accepts the chosen server and starts the run. After a server is chosen, the password's box has the focus."""
    screen.press("Return")
    screen.wait_for_no_window("Select Web Server")
    screen.wait_for_window("Create Gallery")
    screen.type(password)
    screen.press("Return")
    screen.wait_for_no_window("Create Gallery")


def wait_for_end(screen, title, file):
    """Waits for a file that the run makes on the server while its window is up, and then for the end of the run."""
    wait_for_file(file)
    screen.wait_for_no_window(title)
    screen.wait_for_window("p.gpj")


def upload_log(harness):
    return harness.text("config", "vantorium", "ftplog.txt")


def see_failure(screen):
    """The progress window stays, with its log, until it is closed."""
    screen.wait_for_window("FTP Error")
    screen.press("Return")
    screen.wait_for_no_window("FTP Error")
    screen.wait_for_window("Publishing Gallery")
