#include "assets/templateTheme.h"
#include "lockscreen/layoutDocument.h"
#include "model/configResNode.h"
#include "model/fileResNode.h"
#include "modules/description.h"
#include "modules/tables/icons.h"
#include "support/files.h"
#include "support/pattern.h"
#include "support/xmlFile.h"

#include <gtest/gtest.h>

namespace zdt::test {

namespace {

using Names = std::vector<std::string>;

class Templates : public testing::TestWithParam<unsigned> {};

bool isNeeded(const FileResNode& file) {
    return (file.allowedKinds() & (fileKind::png | fileKind::jpeg)) != 0;
}

Names applicableKeys(const ConfigResNode& block) {
    Names keys;
    for (const ResNode* child = block.firstChild(); child; child = child->next()) {
        if (child->isApplicable())
            keys.push_back(child->name() + "=" + child->value());
    }
    return keys;
}

Names writtenKeys(const std::string& path) {
    Names keys;
    tinyxml2::XMLDocument document;
    if (!loadXml(document, path))
        return keys;
    const tinyxml2::XMLElement* root = document.RootElement();
    for (const auto* element = root->FirstChildElement(); element; element = element->NextSiblingElement())
        keys.push_back(std::string(element->Attribute("name")) + "=" + (element->GetText() ? element->GetText() : ""));
    return keys;
}

/// Every file that some theme of the generation has a use for.
std::set<std::string> usedFiles(unsigned generation) {
    std::set<std::string> used{std::string(descriptionFile)};
    for (const TypeMask mask : themeKinds(generation)) {
        // The directory tells of further previews; previewTests.cpp looks at their names.
        const auto theme = makeTree(mask, templatePath(generation));
        for (const ResNode* node : theme->collectApplicableNodes({})) {
            if (const auto* file = dynamic_cast<const FileResNode*>(node))
                used.insert(file->path() + file->name());
            else if (const auto* block = dynamic_cast<const ConfigResNode*>(node); block && !block->isLeaf())
                used.insert(block->path() + "theme.xml");
        }
    }
    return used;
}

} // namespace

TEST_P(Templates, HoldAValidFileForEveryPictureOfEveryKindOfTheme) {
    const TemplateTheme directory(GetParam());
    for (const TypeMask mask : themeKinds(GetParam())) {
        const auto theme = makeTree(mask, directory.path());
        std::size_t checked = 0;
        for (ResNode* node : theme->collectApplicableNodes({})) {
            auto* file = dynamic_cast<FileResNode*>(node);
            if (!file || !isNeeded(*file))
                continue;
            ++checked;
            EXPECT_EQ(file->validate(file->value()), 0) << std::hex << mask << " " << file->path() << file->name();
        }
        EXPECT_GT(checked, 90U) << std::hex << mask;
    }
}

TEST_P(Templates, HoldTheKeysOfABigThemeAtTheirDefaults) {
    const ThemeNode defaults(typeMask::bigTheme | typeMask::chinese | generationBit(GetParam()), "");
    std::size_t blocks = 0;
    for (ResNode* node : const_cast<ThemeNode&>(defaults).nodesInOrder()) {
        const auto* block = dynamic_cast<const ConfigResNode*>(node);
        if (!block)
            continue;
        const Names keys = applicableKeys(*block);
        const std::string path = templatePath(GetParam()) + block->path() + "theme.xml";
        EXPECT_EQ(writtenKeys(path), keys) << path;
        EXPECT_EQ(pathExists(path), !keys.empty()) << path;
        blocks += keys.empty() ? 0 : 1;
    }
    EXPECT_GE(blocks, 9U);
}

TEST_P(Templates, DescribeThemselvesInNineFields) {
    constexpr std::array<const char*, 3> versions{"5.0.1", "8.0.1", "9.0.100"};
    const std::string path = templatePath(GetParam()) + std::string(descriptionFile);
    Description description = readDescriptionFile(path);
    EXPECT_EQ(description["version"], versions[GetParam()]);
    tinyxml2::XMLDocument document;
    ASSERT_TRUE(loadXml(document, path));
    EXPECT_EQ(document.RootElement()->Name(), std::string(descriptionRoot));
    const auto* element = document.RootElement()->FirstChildElement();
    for (const DescriptionField& field : descriptionFields) {
        ASSERT_TRUE(element);
        EXPECT_EQ(element->Name(), field.key);
        EXPECT_TRUE(field.pattern.empty() ||
                    matchesPattern(description[std::string(field.key)], std::string(field.pattern)))
            << field.key;
        element = element->NextSiblingElement();
    }
    EXPECT_FALSE(element);
}

TEST_P(Templates, HoldNothingThatNoThemeUses) {
    const std::set<std::string> used = usedFiles(GetParam());
    for (const std::string& file : filesBelow(templatePath(GetParam()))) {
        // The lock screens' files are named by layouts, and looked at there.
        EXPECT_TRUE(file.starts_with("unlock_") || used.contains(file)) << file;
    }
}

TEST_P(Templates, StaySmall) {
    constexpr std::uint64_t limit = 12 << 20;
    EXPECT_LT(treeSize(templatePath(GetParam())), limit);
}

INSTANTIATE_TEST_SUITE_P(Generations, Templates, testing::Values(0U, 1U, 2U));

} // namespace zdt::test
