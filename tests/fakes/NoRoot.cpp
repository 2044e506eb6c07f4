// Preloaded into a server that demands root rights to change its user and root folder. The server keeps running as the
// test's user and changes neither.
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
