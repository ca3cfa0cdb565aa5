#include "support/xmlFile.h"

#include "support/atomicFile.h"
#include "support/files.h"

#include <cstdint>
#include <memory>

namespace zdt {

namespace {

constexpr std::uint64_t maxXmlBytes = 16 * 1024 * 1024;

} // namespace

bool loadXml(tinyxml2::XMLDocument& document, const std::string& path) {
    document.Clear();
    if (!isPlainFile(path) || fileSize(path) > maxXmlBytes)
        return false;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rbe"), &std::fclose);
    if (file && document.LoadFile(file.get()) == tinyxml2::XML_SUCCESS && document.RootElement())
        return true;
    document.Clear();
    return false;
}

bool saveXml(tinyxml2::XMLDocument& document, const std::string& path) {
    AtomicFile file(path);
    return file.isOpen() && document.SaveFile(file.stream()) == tinyxml2::XML_SUCCESS && file.commit();
}

tinyxml2::XMLElement& startXml(tinyxml2::XMLDocument& document, const std::string& rootName) {
    document.InsertEndChild(document.NewDeclaration());
    tinyxml2::XMLElement* root = document.NewElement(rootName.c_str());
    document.InsertEndChild(root);
    return *root;
}

tinyxml2::XMLElement& addXmlElement(tinyxml2::XMLElement& parent, const std::string& name, const std::string& text) {
    tinyxml2::XMLElement* element = parent.GetDocument()->NewElement(name.c_str());
    if (!text.empty())
        element->InsertEndChild(parent.GetDocument()->NewText(text.c_str()));
    parent.InsertEndChild(element);
    return *element;
}

} // namespace zdt
