#pragma once

#include "common/storeFixture.h"
#include "kit/localisation.h"
#include "kit/skinFolder.h"
#include "kit/workbench.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QStringList>

#include <memory>
#include <string>

namespace zdt::test {

/// What a page needs to be tested: a store with the real templates as its workspace, the real skin, and English texts.
class PageTest : public testing::Test {
protected:
    PageTest() {
        for (const char* name : {"English.ini", "Chinese.ini", "Key.ini", "config.ini"})
            store.write(std::string(skinFolderName) + name, readFile(std::string(ZDT_SKIN_DIR) + name));
        EXPECT_EQ(::chdir(store.root().c_str()), 0);
        LoadKeys();
        SetLanguage(englishLanguage);
    }

    ~PageTest() override { static_cast<void>(::chdir("/")); }

    /// Makes a theme and leaves it open.
    ThemeResource& openNew(const std::string& name = "Aurora", const ThemeKind& kind = {2}) {
        bench.closeTheme();
        bench.takeTheme(store.create(name, kind));
        return *bench.theme();
    }

    TemporaryStore store;
    Workbench bench{SkinLoader(QStringList{ZDT_SKIN_DIR}), store.root()};
};

} // namespace zdt::test
