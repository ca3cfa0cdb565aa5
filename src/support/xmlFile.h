#pragma once

#include <tinyxml2.h>

#include <string>

/// Reading and writing the XML documents of a theme.
namespace zdt {

/// Reads a document. False, with an empty document, if the file is missing, isn't a plain file, isn't well formed or is
/// larger than any document of a theme can be (16 MiB).
[[nodiscard]] bool loadXml(tinyxml2::XMLDocument& document, const std::string& path);

/// Writes a document whole or not at all; the folder must exist.
[[nodiscard]] bool saveXml(tinyxml2::XMLDocument& document, const std::string& path);

/// A new document's declaration and root element.
tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName);

/// A new last child of `parent`, with a text unless that is empty.
tinyxml2::XMLElement& addXmlElement(tinyxml2::XMLElement& parent, const std::string& name,
                                    const std::string& text = {});

} // namespace zdt
