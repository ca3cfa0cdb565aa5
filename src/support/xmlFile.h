#pragma once

#include <tinyxml2.h>

#include <string>

/// Reading and writing the XML documents of a theme.
namespace zdt {

/// Reads a document. False, with an empty document, if the file is missing, isn't a plain file, isn't well formed, or
/// larger than any document of a theme can be: 16 MiB, or 1,000 attributes in an element.
[[nodiscard]] bool loadXml(tinyxml2::XMLDocument& document, const std::string& path);

/// A document's file that was there and couldn't be read. It is kept when the document is written anew, so that an
/// author may still mend it by hand.
class DamagedXml {
public:
    /// Notes the file if something stands there; to be called when `loadXml` failed.
    void note(const std::string& path);
    /// Empty if nothing is damaged.
    [[nodiscard]] const std::string& path() const { return _path; }
    /// To be called before a document is written: moves the damaged file aside, to its name and ".damaged" (or
    /// ".damaged-2" and so on), if that is where it stands.
    [[nodiscard]] bool keepFrom(const std::string& path);

private:
    std::string _path;
};

/// Writes a document whole or not at all; the folder must exist. False as well for one of more bytes or attributes than
/// `loadXml` reads.
[[nodiscard]] bool saveXml(tinyxml2::XMLDocument& document, const std::string& path);

/// A new document's declaration and root element.
tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName);

/// A new last child of `parent`, with a text unless that is empty.
tinyxml2::XMLElement& addXmlElement(tinyxml2::XMLElement& parent, const std::string& name,
                                    const std::string& text = {});

} // namespace zdt
