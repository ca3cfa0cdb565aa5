#include "model/resNode.h"

#include "support/assertion.h"

#include <algorithm>
#include <deque>

namespace zdt {

namespace {

constexpr const char* source = "resNode";

/// The post-order walk behind `collectNodes` and `collectApplicableNodes`, on a stack of its own: a tree as deep as
/// memory allows doesn't overflow the program's. The three steps say which nodes the walk sees.
template <typename First, typename Last, typename Next, typename Visit>
void walkPostOrder(ResNode* start, First first, Last last, Next next, Visit visit) {
    std::deque<ResNode*> stack{start};
    const ResNode* visited = nullptr;
    while (!stack.empty()) {
        ResNode* node = stack.back();
        ResNode* child = first(node);
        if (child && last(node) != visited) {
            stack.push_back(child);
            continue;
        }
        stack.pop_back();
        visited = node;
        visit(node);
        if (ResNode* sibling = stack.empty() ? nullptr : next(node))
            stack.push_back(sibling);
    }
}

} // namespace

ResNode::ResNode(std::string name, std::string value)
    : _value(std::move(value))
    , _name(std::move(name)) {}

ResNode::ResNode(TypeMask mask, std::string name, std::string value)
    : _value(std::move(value))
    , _name(std::move(name))
    , _typeMask(mask) {}

ResNode::ResNode(ResNode* parent, TypeMask mask, std::string name, std::string value)
    : _parent(parent)
    , _value(std::move(value))
    , _name(std::move(name))
    , _typeMask(mask) {}

ResNode::~ResNode() {
    deleteChildren();
    if (_parent)
        unlinkChild(_parent);
}

bool ResNode::save(bool /*all*/) {
    return true;
}

int ResNode::validate(const std::string& /*value*/) {
    return 0;
}

int ResNode::setValue(const std::string& value) {
    _value = value;
    return 0;
}

std::string ResNode::defaultValue() const {
    return {};
}

int ResNode::fail(int code) {
    _errors.assign(1, code);
    return code;
}

ResNode* ResNode::appendChild(ResNode* addNode) {
    ZDT_ASSERT(addNode, source);
    addNode->_prev = _lastChild;
    if (_lastChild) {
        ZDT_ASSERT(_firstChild, source);
        ZDT_ASSERT(_lastChild->_next == nullptr, source);
        _lastChild->_next = addNode;
    } else {
        ZDT_ASSERT(_firstChild == nullptr, source);
        _firstChild = addNode;
    }
    _lastChild = addNode;
    addNode->_next = nullptr;
    addNode->_parent = this;
    return addNode;
}

ResNode* ResNode::insertAfter(ResNode* afterThis, ResNode* addNode) {
    if (!afterThis || afterThis->_parent != this)
        return nullptr;
    addNode->_parent = this;
    addNode->_prev = afterThis;
    addNode->_next = afterThis->_next;
    if (afterThis->_next) {
        afterThis->_next->_prev = addNode;
    } else {
        ZDT_ASSERT(_lastChild == afterThis, source);
        _lastChild = addNode;
    }
    afterThis->_next = addNode;
    return addNode;
}

void ResNode::unlinkChild(ResNode* child) {
    ZDT_ASSERT(child, source);
    if (child == _firstChild)
        _firstChild = child->_next;
    if (child == _lastChild)
        _lastChild = child->_prev;
    if (child->_prev)
        child->_prev->_next = child->_next;
    if (child->_next)
        child->_next->_prev = child->_prev;
    child->_parent = nullptr;
    child->_prev = nullptr;
    child->_next = nullptr;
}

void ResNode::deleteChild(ResNode* node) {
    ZDT_ASSERT(node, source);
    ZDT_ASSERT(node->_parent == this, source);
    unlinkChild(node);
    ZDT_ASSERT(node->_parent == nullptr, source);
    ZDT_ASSERT(node->_prev == nullptr, source);
    ZDT_ASSERT(node->_next == nullptr, source);
    deleteNode(node);
}

void ResNode::deleteChildren() {
    while (_firstChild) {
        ZDT_ASSERT(_lastChild, source);
        deleteChild(_firstChild);
    }
}

void ResNode::deleteNode(ResNode* node) {
    ZDT_ASSERT(node, source);
    delete node;
}

ResNode* ResNode::findChild(const std::string& name, const ResNode* after) const {
    ResNode* node = after ? after->_next : _firstChild;
    while (node && node->_name != name)
        node = node->_next;
    return node;
}

ResNode* ResNode::findByPath(const std::vector<std::string>& keyPath) {
    ResNode* node = this;
    for (auto name = keyPath.begin(); node && name != keyPath.end(); ++name)
        node = node->findChild(*name);
    return node;
}

ResNode* ResNode::findByPath(const std::list<std::string>& keyPath) {
    return findByPath(std::vector<std::string>(keyPath.begin(), keyPath.end()));
}

ResNode* ResNode::findByPathAndName(const std::vector<std::string>& keyPath, const std::string& name) {
    std::vector<std::string> path = keyPath;
    path.push_back(name);
    return findByPath(path);
}

ResNode* ResNode::findNth(const std::string& name, int n) const {
    if (n < 1)
        return nullptr;
    ResNode* node = findChild(name);
    for (; n > 1; --n) {
        ZDT_ASSERT(node, source);
        node = findChild(name, node);
    }
    ZDT_ASSERT(node, source);
    return node;
}

ResNode* ResNode::findNthByPath(const std::list<std::string>& keyPath, int n) {
    if (keyPath.empty())
        return this;
    if (n < 1)
        return nullptr;
    const std::vector<std::string> above(keyPath.begin(), std::prev(keyPath.end()));
    const ResNode* node = findByPath(above);
    return node ? node->findNth(keyPath.back(), n) : nullptr;
}

const ResNode* ResNode::rootNode() const {
    const ResNode* node = this;
    while (node->_parent)
        node = node->_parent;
    return node;
}

ResNode* ResNode::rootNode() {
    return const_cast<ResNode*>(std::as_const(*this).rootNode());
}

ResNode* ResNode::ancestor(unsigned n) const {
    ResNode* node = _parent;
    for (; node && n > 0; --n)
        node = node->_parent;
    return node;
}

std::string ResNode::rootDirectory() const {
    return rootNode()->_path;
}

TypeMask ResNode::rootTypeMask() const {
    return rootNode()->_typeMask;
}

std::string ResNode::nodeDirectory() const {
    const std::string root = rootDirectory();
    return root.empty() || _path.empty() ? std::string() : root + _path;
}

KeyPath ResNode::keyPath() const {
    KeyPath path;
    for (const ResNode* node = this; node->_parent; node = node->_parent)
        path.push_back(node->_name);
    std::reverse(path.begin(), path.end());
    return path;
}

std::set<ResNode*> ResNode::collectNodes() {
    std::set<ResNode*> nodes;
    walkPostOrder(
        this, [](ResNode* node) { return node->_firstChild; }, [](ResNode* node) { return node->_lastChild; },
        [](ResNode* node) { return node->_next; }, [&](ResNode* node) { nodes.insert(node); });
    return nodes;
}

std::set<ResNode*> ResNode::collectApplicableNodes(const std::set<ResNode*>& excluded) {
    const auto forward = [&](ResNode* node) {
        while (node && excluded.contains(node))
            node = node->_next;
        return node;
    };
    const auto backward = [&](ResNode* node) {
        while (node && excluded.contains(node))
            node = node->_prev;
        return node;
    };
    std::set<ResNode*> nodes;
    walkPostOrder(
        this, [&](ResNode* node) { return forward(node->_firstChild); },
        [&](ResNode* node) { return backward(node->_lastChild); }, [&](ResNode* node) { return forward(node->_next); },
        [&](ResNode* node) {
            if (node->hasAllBits(_typeMask))
                nodes.insert(node);
        });
    return nodes;
}

std::set<ResNode*> ResNode::collectLeaves() {
    std::set<ResNode*> leaves = collectNodes();
    std::erase_if(leaves, [](const ResNode* node) { return !node->isLeaf(); });
    return leaves;
}

std::vector<ResNode*> ResNode::nodesInOrder() {
    std::vector<ResNode*> nodes;
    ResNode* node = this;
    while (node) {
        nodes.push_back(node);
        if (node->_firstChild) {
            node = node->_firstChild;
            continue;
        }
        while (node != this && !node->_next)
            node = node->_parent;
        node = node == this ? nullptr : node->_next;
    }
    return nodes;
}

} // namespace zdt
