#include "model/resNode.h"

#include <gtest/gtest.h>

#include <random>

namespace zdt {
namespace {

using Names = std::vector<std::string>;
using Nodes = std::set<ResNode*>;

/// The names of the children, whose links must agree.
Names childNames(const ResNode& node) {
    Names names;
    const ResNode* last = nullptr;
    for (const ResNode* child = node.firstChild(); child; child = child->next()) {
        EXPECT_EQ(child->parent(), &node);
        names.push_back(child->name());
        last = child;
    }
    EXPECT_EQ(node.lastChild(), last);
    return names;
}

ResNode* add(ResNode& parent, const std::string& name, TypeMask mask = typeMask::everywhere) {
    return parent.appendChild(new ResNode(mask, name));
}

void gather(ResNode* node, TypeMask theme, const Nodes& excluded, Nodes& nodes) {
    if (node->hasAllBits(theme))
        nodes.insert(node);
    for (ResNode* child = node->firstChild(); child; child = child->next()) {
        if (!excluded.contains(child))
            gather(child, theme, excluded, nodes);
    }
}

/// Notes its name when it is destroyed.
class TracedNode : public ResNode {
public:
    TracedNode(std::string name, Names& destroyed)
        : ResNode(std::move(name))
        , _destroyed(destroyed) {}
    ~TracedNode() override { _destroyed.push_back(name()); }

private:
    Names& _destroyed;
};

TEST(ResNode, ChildrenKeepTheOrderOfInsertion) {
    ResNode root;
    ResNode* a = add(root, "a");
    ResNode* c = add(root, "c");
    ResNode* b = new ResNode("b");
    EXPECT_EQ(root.insertAfter(a, b), b);
    EXPECT_EQ(childNames(root), (Names{"a", "b", "c"}));
    root.insertAfter(c, new ResNode("d"));
    EXPECT_EQ(childNames(root), (Names{"a", "b", "c", "d"}));
    EXPECT_EQ(root.lastChild()->name(), "d");

    ResNode other;
    ResNode* stranger = add(other, "stranger");
    ResNode lonely("lonely");
    for (ResNode* after : {static_cast<ResNode*>(nullptr), stranger, &root, &lonely}) {
        EXPECT_EQ(root.insertAfter(after, &lonely), nullptr);
        EXPECT_EQ(lonely.parent(), nullptr);
        EXPECT_EQ(childNames(root), (Names{"a", "b", "c", "d"}));
        EXPECT_EQ(childNames(other), Names{"stranger"});
    }
}

TEST(ResNode, UnlinkedChildLeavesAWholeListBehind) {
    const struct {
        const char* taken;
        Names left;
    } cases[] = {{"b", {"a", "c"}}, {"a", {"c"}}, {"c", {}}};
    ResNode root;
    for (const char* name : {"a", "b", "c"})
        add(root, name);
    for (const auto& [taken, left] : cases) {
        SCOPED_TRACE(taken);
        const std::unique_ptr<ResNode> child(root.findChild(taken));
        root.unlinkChild(child.get());
        EXPECT_EQ(childNames(root), left);
        EXPECT_EQ(child->parent(), nullptr);
        EXPECT_EQ(child->next(), nullptr);
    }
    EXPECT_EQ(root.firstChild(), nullptr);
    EXPECT_EQ(root.lastChild(), nullptr);
    add(root, "again");
    EXPECT_EQ(childNames(root), Names{"again"});
}

TEST(ResNode, DeletingTakesTheSubtreeAndEachNodeOnce) {
    Names destroyed;
    {
        TracedNode root("root", destroyed);
        for (const char* name : {"a", "b", "c"}) {
            auto& child = root.adopt(std::make_unique<TracedNode>(name, destroyed));
            child.adopt(std::make_unique<TracedNode>(std::string(name) + "1", destroyed));
        }
        root.deleteChild(root.findChild("b"));
        EXPECT_EQ(std::set<std::string>(destroyed.begin(), destroyed.end()), (std::set<std::string>{"b", "b1"}));
        EXPECT_EQ(childNames(root), (Names{"a", "c"}));
        root.findChild("c")->deleteChildren();
        EXPECT_TRUE(root.findChild("c")->isLeaf());
        EXPECT_EQ(destroyed.size(), 3U);
    }
    EXPECT_EQ(destroyed.size(), 7U);
    EXPECT_EQ(std::set<std::string>(destroyed.begin(), destroyed.end()).size(), 7U);
}

TEST(ResNode, PathLeadsToANodeOrToNothing) {
    ResNode root("root");
    ResNode* image = add(*add(root, "wallpaper"), "image");
    ResNode* leaf = add(*image, "home_wallpaper_0.jpg");
    const struct {
        KeyPath path;
        ResNode* node;
    } cases[] = {
        {{}, &root},
        {{"wallpaper", "image"}, image},
        {{"wallpaper", "image", "home_wallpaper_0.jpg"}, leaf},
        {{"root", "wallpaper"}, nullptr},
        {{"Wallpaper"}, nullptr},
        {{"wallpaper", ""}, nullptr},
        {{"wallpaper/image"}, nullptr},
        {{"wallpaper", "missing", "home_wallpaper_0.jpg"}, nullptr},
        {{"wallpaper", "image", "home_wallpaper_0.jpg", "x"}, nullptr},
    };
    for (const auto& [path, node] : cases) {
        SCOPED_TRACE(joinKeyPath(path));
        EXPECT_EQ(root.findByPath(path), node);
        EXPECT_EQ(root.findByPath(std::list<std::string>(path.begin(), path.end())), node);
        EXPECT_TRUE(!node || node->keyPath() == path);
    }
    EXPECT_EQ(leaf->findByPath(KeyPath{}), leaf);
    EXPECT_EQ(root.findByPathAndName({"wallpaper", "image"}, "home_wallpaper_0.jpg"), leaf);
    EXPECT_EQ(root.findByPathAndName({"wallpaper"}, "home_wallpaper_0.jpg"), nullptr);
}

TEST(ResNode, NamesakesAreCountedFromOne) {
    ResNode root;
    ResNode* first = add(root, "text");
    add(root, "image");
    ResNode* second = add(root, "text");
    EXPECT_EQ(root.findChild("text", first), second);
    EXPECT_EQ(root.findChild("text", second), nullptr);
    const struct {
        std::list<std::string> path;
        int n;
        ResNode* node;
    } cases[] = {
        {{"text"}, 1, first}, {{"text"}, 2, second},          {{"text"}, 0, nullptr},
        {{}, 0, &root},       {{"missing", "x"}, 1, nullptr}, {{"text"}, -1, nullptr},
    };
    for (const auto& [path, n, node] : cases)
        EXPECT_EQ(root.findNthByPath(path, n), node) << path.size() << ", " << n;
    EXPECT_EQ(root.findNth("text", 2), second);
    EXPECT_EQ(root.findNth("missing", 0), nullptr);
}

TEST(ResNodeDeathTest, ProgrammingErrorsStop) {
    ResNode root;
    add(root, "text");
    ResNode stranger;
    EXPECT_DEATH(root.appendChild(nullptr), "addNode.*resNode");
    EXPECT_DEATH(root.deleteChild(&stranger), "node->_parent == this.*resNode");
    EXPECT_DEATH(static_cast<void>(root.findNth("text", 2)), "node.*resNode");
    EXPECT_DEATH(ResNode::deleteNode(nullptr), "node.*resNode");
}

TEST(ResNode, PlaceInTheTreeIsFoundFromBelow) {
    ResNode root;
    root.setPath("/themes/res/a/");
    root.setTypeMask(0x50000002);
    ResNode* module = add(root, "mms");
    ResNode* leaf = add(*module, "text");
    leaf->setPath("com.android.mms/");
    EXPECT_EQ(leaf->rootNode(), &root);
    EXPECT_EQ(root.rootNode(), &root);
    EXPECT_EQ(leaf->ancestor(0), module);
    EXPECT_EQ(leaf->ancestor(1), &root);
    EXPECT_EQ(leaf->ancestor(2), nullptr);
    EXPECT_EQ(leaf->ancestor(1000), nullptr);
    EXPECT_EQ(leaf->nodeDirectory(), "/themes/res/a/com.android.mms/");
    EXPECT_EQ(module->nodeDirectory(), "") << "no directory of its own";
    EXPECT_EQ(leaf->rootTypeMask(), 0x50000002U);
    EXPECT_EQ(module->keyPath(), KeyPath{"mms"});
    EXPECT_TRUE(root.keyPath().empty());
    ResNode early(module);
    EXPECT_EQ(early.rootNode(), &root) << "a node knows its place before it is linked";
    EXPECT_EQ(childNames(*module), Names{"text"});
    module->appendChild(&early);
    module->unlinkChild(&early);
    root.setPath("");
    EXPECT_EQ(leaf->nodeDirectory(), "") << "no theme directory";
}

TEST(ResNode, NodeTakesPartIfItHoldsAllBitsOfTheTheme) {
    const struct {
        TypeMask theme;
        TypeMask node;
        bool applicable;
    } cases[] = {
        {0x50000001, 0xf0000007, true},
        {0xa0000004, 0xf0000007, true},
        {0x90000001, 0x70000007, false},
        {0x50000001, 0x70000006, false},
        {0x50000001, 0x70000001, true},
        {0x60000001, 0x70000001, true},
        {0x60000001, 0xe0000007, true},
        {0x50000001, 0xe0000007, false},
        {0x50000000, 0x50000000, true},
        {0, 0, true},
        {0, 0x1, true},
        {0x80000004, 0x80000002, false},
    };
    for (const auto& [theme, mask, applicable] : cases) {
        ResNode root(theme);
        EXPECT_EQ(add(root, "node", mask)->isApplicable(), applicable) << std::hex << theme << ' ' << mask;
        EXPECT_EQ(root.collectApplicableNodes({}).size(), applicable ? 2U : 1U);
    }
}

TEST(ResNode, WalksAgreeWithARecursiveOneOnTreesOfAnyShape) {
    std::mt19937 random(20240501);
    for (int round = 0; round < 200; ++round) {
        ResNode above("above");
        ResNode* root = add(above, "root", 0x3);
        add(above, "sibling of the root", 0x3);
        std::vector<ResNode*> nodes{root};
        Nodes excluded;
        for (std::size_t count = random() % 40; count > 0; --count) {
            nodes.push_back(add(*nodes[random() % nodes.size()], "node", random() % 4));
            if (random() % 5 == 0)
                excluded.insert(nodes.back());
        }
        Nodes expected(nodes.begin(), nodes.end());
        EXPECT_EQ(root->collectNodes(), expected);
        std::erase_if(expected, [](const ResNode* node) { return node->firstChild(); });
        EXPECT_EQ(root->collectLeaves(), expected);
        Nodes applicable;
        gather(root, 0x3, excluded, applicable);
        EXPECT_EQ(root->collectApplicableNodes(excluded), applicable);
        const std::vector<ResNode*> inOrder = root->nodesInOrder();
        EXPECT_EQ(Nodes(inOrder.begin(), inOrder.end()), root->collectNodes());
        EXPECT_EQ(inOrder.size(), nodes.size());
    }
}

TEST(ResNode, OrderOfTheTreeIsParentsFirst) {
    ResNode root("root");
    ResNode* a = add(root, "a");
    add(*add(*a, "a1"), "a11");
    add(*a, "a2");
    add(*add(root, "b"), "b1");
    Names names;
    for (const ResNode* node : root.nodesInOrder())
        names.push_back(node->name());
    EXPECT_EQ(names, (Names{"root", "a", "a1", "a11", "a2", "b", "b1"}));
}

TEST(ResNode, WalksOnADeepTreeDoNotOverflow) {
    constexpr std::size_t levels = 100'000;
    ResNode root;
    std::vector<ResNode*> chain{&root};
    while (chain.size() <= levels)
        chain.push_back(add(*chain.back(), "n"));
    EXPECT_EQ(root.collectNodes().size(), levels + 1);
    EXPECT_EQ(root.collectApplicableNodes({chain[levels / 2]}).size(), levels / 2);
    EXPECT_EQ(root.collectLeaves(), Nodes{chain.back()});
    EXPECT_EQ(root.nodesInOrder(), chain);
    EXPECT_EQ(chain.back()->rootNode(), &root);
    EXPECT_EQ(chain.back()->keyPath().size(), levels);
    EXPECT_EQ(root.findByPath(KeyPath(levels, "n")), chain.back());
    for (std::size_t level = levels; level > 0; --level)
        chain[level - 1]->deleteChildren();
}

TEST(KeyPath, JoinsAndSplitsAtSlashes) {
    const struct {
        const char* text;
        KeyPath path;
    } cases[] = {
        {"", {}},          {"title", {"title"}}, {"a/b/c.9.png", {"a", "b", "c.9.png"}}, {"a//b", {"a", "", "b"}},
        {"a/", {"a", ""}}, {"/", {"", ""}}};
    for (const auto& [text, path] : cases) {
        EXPECT_EQ(splitKeyPath(text), path);
        EXPECT_EQ(joinKeyPath(path), text);
    }
}

TEST(TypeMask, GenerationIsThatOfTheLowestBit) {
    const struct {
        TypeMask mask;
        unsigned index;
    } cases[] = {{0x50000001, 0}, {0xa0000002, 1}, {0x90000004, 2}, {0x7, 0}, {0x6, 1}, {0xf0000000, 3}, {0, 3}};
    for (const auto& [mask, index] : cases)
        EXPECT_EQ(generationIndex(mask), index) << std::hex << mask;
    EXPECT_EQ(generationBit(2), 4U);
    EXPECT_EQ(generationBit(3), 0U);
    EXPECT_EQ(generationBit(40), 0U);
}

} // namespace
} // namespace zdt
