// Stands between a program and the system: the process dies, as by kill -9, at the call with the
// number TAVOLI_KILL_AT of those that change a file, before the call is carried out.

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

constexpr int lastStandardStream = 2;

void countCall() {
  static std::atomic<int> calls = 0;
  const char* killAt = std::getenv("TAVOLI_KILL_AT");
  if (killAt && ++calls == std::atoi(killAt)) raise(SIGKILL);
}

template <typename Function>
Function systemCall(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
  static const auto real = systemCall<ssize_t (*)(int, const void*, size_t)>("write");
  if (file > lastStandardStream) countCall();
  return real(file, bytes, count);
}

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place) {
  static const auto real = systemCall<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
  countCall();
  return real(file, bytes, count, place);
}

int fsync(int file) {
  static const auto real = systemCall<int (*)(int)>("fsync");
  countCall();
  return real(file);
}

int fdatasync(int file) {
  static const auto real = systemCall<int (*)(int)>("fdatasync");
  countCall();
  return real(file);
}

int ftruncate64(int file, off64_t size) noexcept {
  static const auto real = systemCall<int (*)(int, off64_t)>("ftruncate64");
  countCall();
  return real(file, size);
}

int unlink(const char* path) noexcept {
  static const auto real = systemCall<int (*)(const char*)>("unlink");
  countCall();
  return real(path);
}

int rename(const char* from, const char* to) noexcept {
  static const auto real = systemCall<int (*)(const char*, const char*)>("rename");
  countCall();
  return real(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  static const auto real =
      systemCall<int (*)(int, const char*, int, const char*, unsigned)>("renameat2");
  countCall();
  return real(fromFolder, from, toFolder, to, flags);
}

}  // extern "C"
