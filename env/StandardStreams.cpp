#include "env/StandardStreams.h"

#include <initializer_list>
#include <tuple>

#include <fcntl.h>
#include <unistd.h>

namespace vantorium::env {

void HoldStandardStreams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    // open returns the lowest free number, which is the stream's own.
    const int wrongWay = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (::fcntl(stream, F_GETFD) < 0) std::ignore = ::open("/dev/null", wrongWay);
  }
}

}  // namespace vantorium::env
