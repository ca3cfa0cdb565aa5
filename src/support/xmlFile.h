#pragma once

#include "support/damagedFile.h"

#include <tinyxml2.h>

#include <string>

/// Reading and writing the XML documents of a theme.
namespace zdt {

/// Reads a document. False, with an empty document, if the file is missing, isn't a plain file, isn't well formed,
/// holds control characters, plain or as references, or is larger than any document of a theme can be: 16 MiB, or 1,000
/// attributes in an element.
[[nodiscard]] bool loadXml(tinyxml2::XMLDocument& document, const std::string& path);

/// Writes a document whole or not at all; the folder must exist. False as well for one that `loadXml` would not read.
[[nodiscard]] bool saveXml(const tinyxml2::XMLDocument& document, const std::string& path);

/// The same for a text that was printed with no document: much faster for one that is written at each edit.
[[nodiscard]] bool saveXml(const tinyxml2::XMLPrinter& printer, const std::string& path);

/// Prints a declaration and opens the root element.
void startXml(tinyxml2::XMLPrinter& printer, const std::string& rootName);

/// A new document's declaration and root element.
tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName);

/// A new last child of `parent`, with a text unless that is empty.
tinyxml2::XMLElement& addXmlElement(tinyxml2::XMLElement& parent, const std::string& name,
                                    const std::string& text = {});

} // namespace zdt
