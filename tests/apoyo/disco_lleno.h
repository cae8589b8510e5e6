#pragma once

#ifndef _WIN32

#include <sys/resource.h>

namespace calvento {

/// While it lives no file of this program grows beyond so many bytes, as on a disk that is full then.
class DiscoLleno {
 public:
  explicit DiscoLleno(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &antes_);
    rlimit corto = antes_;
    corto.rlim_cur = bytes;
    ::setrlimit(RLIMIT_FSIZE, &corto);
  }
  DiscoLleno(const DiscoLleno&) = delete;
  DiscoLleno& operator=(const DiscoLleno&) = delete;
  ~DiscoLleno() { ::setrlimit(RLIMIT_FSIZE, &antes_); }

 private:
  rlimit antes_{};
};

}  // namespace calvento

#endif
