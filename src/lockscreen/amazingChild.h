#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
} // namespace tinyxml2

namespace zdt {

/// An element of a lock screen layout: a tag, attributes and children. It is generic, so that elements which the
/// designer doesn't know survive reading and writing: names, attributes with a value, order and children do; text
/// between tags and empty attributes don't.
class AmazingChild {
public:
    using Attributes = std::map<std::string, std::string>;
    using Children = std::vector<std::unique_ptr<AmazingChild>>;

    explicit AmazingChild(std::string name, Attributes attributes = {});
    /// Reads the element and, recursively, its children. A null element gives an element without a name.
    explicit AmazingChild(const tinyxml2::XMLElement* element);
    /// Copies the children too, as plain elements.
    AmazingChild(const AmazingChild& other);
    /// Takes the other's name, attributes and children: how an element becomes one of another class.
    AmazingChild(AmazingChild&& other) noexcept;
    AmazingChild& operator=(const AmazingChild&) = delete;
    AmazingChild& operator=(AmazingChild&&) = delete;

    virtual ~AmazingChild();
    /// Copies the pictures that the element and its children name from one directory, ending in "/", to another. Stops
    /// at the first that can't be copied, and then gives false; what was copied before stays.
    [[nodiscard]] virtual bool copyResources(const std::string& sourceDirectory,
                                             const std::string& targetDirectory) const;
    /// The bare names of the picture files that the element itself names: those of an `image` or a `frame`, none for
    /// any other or without a `src`. Nothing if its `src` stands for more names than a layout can use.
    [[nodiscard]] virtual std::optional<std::vector<std::string>> resources() const;

    [[nodiscard]] const std::string& name() const { return _name; }
    [[nodiscard]] const Attributes& attributes() const { return _attributes; }
    void setAttributes(Attributes attributes) { _attributes = std::move(attributes); }
    /// Empty for an absent attribute.
    [[nodiscard]] std::string attribute(const std::string& name) const;
    void setAttribute(const std::string& name, std::string value) { _attributes[name] = std::move(value); }
    void removeAttribute(const std::string& name) { _attributes.erase(name); }

    [[nodiscard]] const Children& children() const { return _children; }
    AmazingChild& addChild(std::unique_ptr<AmazingChild> child);
    [[nodiscard]] Children takeChildren() { return std::exchange(_children, {}); }
    void setChildren(Children children) { _children = std::move(children); }

    [[nodiscard]] std::string src() const { return attribute("src"); }
    /// Stores the file name of a path in `src`. An element without a `src` stays as it is, and so does any with a path
    /// that ends in "/".
    void setFile(const std::string& path);

    /// The element in XML, not yet inserted in the document; null for an element without a name.
    tinyxml2::XMLElement* write(tinyxml2::XMLDocument* doc) const;

private:
    std::string _name;
    Attributes _attributes;
    Children _children;
};

/// Whether a picture's name is a bare file name, which can't lead out of a theme's directory.
[[nodiscard]] bool isBareFileName(const std::string& name);

} // namespace zdt
