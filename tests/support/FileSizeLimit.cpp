#include "support/FileSizeLimit.h"

#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

namespace iw::test {

bool UnderFileSizeLimit(std::uint64_t limit, const std::function<bool()>& write) {
    rlimit saved{};
    getrlimit(RLIMIT_FSIZE, &saved);
    rlimit small = saved;
    small.rlim_cur = limit;
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    if (setrlimit(RLIMIT_FSIZE, &small) != 0) throw std::runtime_error("cannot limit file sizes");
    const bool result = write();
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, previous);
    return result;
}

}  // namespace iw::test
