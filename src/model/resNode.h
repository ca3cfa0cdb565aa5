#pragma once

#include "model/keyPath.h"
#include "model/typeMask.h"

#include <list>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace zdt {

/// A node of a theme's resource tree: a picture, a colour, a block of colours, a phone application's module. The tree
/// is intrusive: siblings form a doubly linked list in insertion order, which is the order of the tree and of every
/// walk. A child is owned by its parent, a root by whoever made it. Nothing here is locked.
///
/// A failed lookup gives null; assertions guard against programming errors alone.
class ResNode {
public:
    ResNode() = default;
    explicit ResNode(std::string name, std::string value = {});
    explicit ResNode(TypeMask mask, std::string name = {}, std::string value = {});
    /// A node made with a parent knows where it will stand, and can so read its files, but isn't linked into the
    /// parent's list: `appendChild` does that. `emplaceChild` does both.
    explicit ResNode(ResNode* parent, TypeMask mask = typeMask::everywhere, std::string name = {},
                     std::string value = {});
    ResNode(const ResNode&) = delete;
    ResNode& operator=(const ResNode&) = delete;

    virtual ~ResNode();
    /// Writes what the node stands for into the theme directory. With `all`, what takes no part in the present theme is
    /// written too: single blocks are saved so, whole themes aren't.
    [[nodiscard]] virtual bool save(bool all);
    /// Whether the value may be set: 0 or a return code, which then stands in `errors`.
    [[nodiscard]] virtual int validate(const std::string& value);
    /// Sets the value if it is allowed; 0 or a return code, and then the old value stays.
    [[nodiscard]] virtual int setValue(const std::string& value);
    /// What a new theme of the present generation would hold.
    [[nodiscard]] virtual std::string defaultValue() const;

    [[nodiscard]] const std::string& name() const { return _name; }
    /// A colour or text; for a file, the path of the current file. Empty if nothing is set.
    [[nodiscard]] std::string value() const { return _value; }
    /// The directory, relative to the theme's and ending in "/", in which the node's file belongs; in the root, the
    /// theme directory itself.
    [[nodiscard]] std::string path() const { return _path; }
    void setPath(std::string path) { _path = std::move(path); }
    /// Sets the value with no validation and no copying.
    void setRawValue(std::string value) { _value = std::move(value); }
    void clearValue() { _value.clear(); }

    [[nodiscard]] TypeMask typeMask() const { return _typeMask; }
    void setTypeMask(TypeMask mask) { _typeMask = mask; }
    void addTypeBits(TypeMask bits) { _typeMask |= bits; }
    void removeTypeBits(TypeMask bits) { _typeMask &= ~bits; }
    [[nodiscard]] bool hasAllBits(TypeMask bits) const { return (bits & _typeMask) == bits; }
    /// Whether the node takes part in the theme of its root.
    [[nodiscard]] bool isApplicable() const { return hasAllBits(rootTypeMask()); }

    /// The code of the last failed validation.
    [[nodiscard]] std::vector<int> errors() const { return _errors; }
    /// 0 for a plain node, 1 for a text, 2 for a colour or a block of values.
    [[nodiscard]] int valueKind() const { return _valueKind; }

    [[nodiscard]] ResNode* firstChild() const { return _firstChild; }
    [[nodiscard]] ResNode* lastChild() const { return _lastChild; }
    [[nodiscard]] ResNode* parent() const { return _parent; }
    [[nodiscard]] ResNode* next() const { return _next; }
    [[nodiscard]] bool isLeaf() const { return !_firstChild; }

    /// Takes ownership of a detached node and puts it behind the last child.
    ResNode* appendChild(ResNode* addNode);
    /// Takes ownership of a detached node and puts it behind one of this node's children. Null, with nothing changed,
    /// if `afterThis` is null or another node's child.
    ResNode* insertAfter(ResNode* afterThis, ResNode* addNode);
    /// Takes a child out of the list; the caller owns it from then on.
    void unlinkChild(ResNode* child);
    void deleteChild(ResNode* node);
    void deleteChildren();
    static void deleteNode(ResNode* node);

    /// Makes a node with this one as its parent and appends it. `Node`'s constructor takes the parent first.
    template <typename Node, typename... Arguments>
    Node& emplaceChild(Arguments&&... arguments) {
        return adopt(std::make_unique<Node>(this, std::forward<Arguments>(arguments)...));
    }
    /// Appends a node made before.
    template <typename Node>
    Node& adopt(std::unique_ptr<Node> node) {
        Node& result = *node;
        appendChild(node.release());
        return result;
    }

    /// The first child of that name, or the first behind `after`, itself a child. A linear scan.
    [[nodiscard]] ResNode* findChild(const std::string& name, const ResNode* after = nullptr) const;
    /// The node at the end of the path; this node for an empty one.
    [[nodiscard]] ResNode* findByPath(const std::vector<std::string>& keyPath);
    [[nodiscard]] ResNode* findByPath(const std::list<std::string>& keyPath);
    [[nodiscard]] ResNode* findByPathAndName(const std::vector<std::string>& keyPath, const std::string& name);
    /// The n-th child of that name, counted from 1; null below 1. The caller counts the namesakes first: asking for
    /// more than there are is a programming error.
    [[nodiscard]] ResNode* findNth(const std::string& name, int n) const;
    /// `findNth` of the path's last name below the rest of the path; this node for an empty path.
    [[nodiscard]] ResNode* findNthByPath(const std::list<std::string>& keyPath, int n);

    [[nodiscard]] ResNode* rootNode();
    [[nodiscard]] const ResNode* rootNode() const;
    /// The n-th node above the parent: `ancestor(0)` is the parent. Null past the top.
    [[nodiscard]] ResNode* ancestor(unsigned n) const;
    /// The root's `path`.
    [[nodiscard]] std::string rootDirectory() const;
    /// The root's mask.
    [[nodiscard]] TypeMask rootTypeMask() const;
    /// `rootDirectory` followed by `path`; empty if either is.
    [[nodiscard]] std::string nodeDirectory() const;
    /// The names from below the root down to this node.
    [[nodiscard]] KeyPath keyPath() const;

    /// This node and all below it.
    [[nodiscard]] std::set<ResNode*> collectNodes();
    /// Those of them that take part in the theme of this node, itself its root, without the excluded subtrees.
    [[nodiscard]] std::set<ResNode*> collectApplicableNodes(const std::set<ResNode*>& excluded);
    /// The childless ones of `collectNodes`, grouping nodes with no child among them.
    [[nodiscard]] std::set<ResNode*> collectLeaves();
    /// This node and all below it in the tree's order, parents before their children.
    [[nodiscard]] std::vector<ResNode*> nodesInOrder();

protected:
    /// Notes the code of a failed validation and returns it.
    int fail(int code);
    void setValueKind(int kind) { _valueKind = kind; }

private:
    ResNode* _parent = nullptr;
    ResNode* _firstChild = nullptr;
    ResNode* _lastChild = nullptr;
    ResNode* _prev = nullptr;
    ResNode* _next = nullptr;
    std::string _value;
    std::string _name;
    std::string _path;
    TypeMask _typeMask = typeMask::everywhere;
    std::vector<int> _errors;
    int _valueKind = 0;
};

} // namespace zdt
