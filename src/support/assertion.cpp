#include "support/assertion.h"

#include <cstdio>
#include <cstdlib>

namespace zdt {

void assertionFailed(const char* condition, const char* source, int line) {
    std::fprintf(stderr, "assertion \"%s\" failed in %s, line %d\n", condition, source, line);
    std::abort();
}

} // namespace zdt
