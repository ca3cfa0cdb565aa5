#pragma once

#include "common/storeFixture.h"

namespace zdt::test {

/// A store that holds the built pictures of the screens in its skin, as the working directory of the process.
class SkinnedStore : public TemporaryStore {
public:
    SkinnedStore();
    ~SkinnedStore();
};

} // namespace zdt::test
