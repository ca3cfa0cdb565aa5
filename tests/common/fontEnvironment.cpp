#include "assets/art/faces.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

#include <memory>

namespace zdt::test {

namespace {

/// Fonts take an application.
class FontEnvironment : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        _application = std::make_unique<QGuiApplication>(_count, _arguments);
        ASSERT_TRUE(assets::missingFonts().isEmpty()) << qPrintable(assets::missingFonts());
    }
    void TearDown() override { _application.reset(); }

private:
    int _count = 1;
    char _name[6] = "tests";
    char* _arguments[2] = {_name, nullptr};
    std::unique_ptr<QGuiApplication> _application;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new FontEnvironment);

} // namespace

} // namespace zdt::test
