#pragma once

#include <csignal>
#include <sys/resource.h>

namespace essais {

/// No file may grow past a size while this lives, as on a full disk; nor in a program that is
/// started meanwhile.
class Plafond {
  public:
    explicit Plafond(rlim_t octets) {
        ancienne_ = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        auto limite = avant_;
        limite.rlim_cur = octets;
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    Plafond(const Plafond&) = delete;
    Plafond& operator=(const Plafond&) = delete;
    ~Plafond() {
        ::setrlimit(RLIMIT_FSIZE, &avant_);
        std::signal(SIGXFSZ, ancienne_);
    }

  private:
    rlimit avant_{};
    void (*ancienne_)(int);
};

}  // namespace essais
