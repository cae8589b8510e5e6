#pragma once

#ifndef _WIN32

#include <csignal>
#include <sys/resource.h>

namespace calvento {

/// While it lives no file of this program grows beyond so many bytes, as on a disk that is full then.
class DiscoLleno {
 public:
  explicit DiscoLleno(rlim_t bytes) : senal_(std::signal(SIGXFSZ, SIG_IGN)) {  // then a write fails, as it does there
    ::getrlimit(RLIMIT_FSIZE, &antes_);
    rlimit corto = antes_;
    corto.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &corto);
  }
  DiscoLleno(const DiscoLleno&) = delete;
  DiscoLleno& operator=(const DiscoLleno&) = delete;
  ~DiscoLleno() {
    ::setrlimit(RLIMIT_FSIZE, &antes_);
    std::signal(SIGXFSZ, senal_);
  }

 private:
  void (*senal_)(int);
  rlimit antes_{};
};

}  // namespace calvento

#endif
