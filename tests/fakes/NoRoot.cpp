// Preloaded into a server that insists on root rights to change its user. It stays the test's user instead, whoever
// that is, and is confined nowhere.
#include <grp.h>
#include <unistd.h>

extern "C" {

int setuid(uid_t /*user*/) noexcept {
  return 0;
}
int seteuid(uid_t /*user*/) noexcept {
  return 0;
}
int setgid(gid_t /*group*/) noexcept {
  return 0;
}
int setegid(gid_t /*group*/) noexcept {
  return 0;
}
int setgroups(size_t /*count*/, const gid_t* /*groups*/) noexcept {
  return 0;
}
int initgroups(const char* /*user*/, gid_t /*group*/) {
  return 0;
}
int chroot(const char* /*folder*/) noexcept {
  return 0;
}
}
