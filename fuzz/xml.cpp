#include "input.h"
#include "support/xmlFile.h"

/// What this system reads and writes: elements with attributes and a text, in a document of its own.
namespace zdt {
namespace {

constexpr int maxAttributes = 1000; ///< What `loadXml` promises of each element.

/// The element's text; empty if it has none but blanks, which a document doesn't keep.
std::string textOf(const tinyxml2::XMLElement& element) {
    const std::string text = element.GetText() ? element.GetText() : "";
    return text.find_first_not_of(" \t\r\n") == std::string::npos ? std::string() : text;
}

void copyInto(tinyxml2::XMLElement& copy, const tinyxml2::XMLElement& element) {
    int count = 0;
    for (const auto* attribute = element.FirstAttribute(); attribute; attribute = attribute->Next()) {
        copy.SetAttribute(attribute->Name(), attribute->Value());
        ++count;
    }
    ZDT_FUZZ_CHECK(count <= maxAttributes);
    for (const auto* child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        copyInto(addXmlElement(copy, child->Name(), textOf(*child)), *child);
}

bool haveEqualAttributes(const tinyxml2::XMLElement& one, const tinyxml2::XMLElement& other) {
    for (const auto* attribute = one.FirstAttribute(); attribute; attribute = attribute->Next()) {
        if (!other.Attribute(attribute->Name(), attribute->Value()))
            return false;
    }
    return true;
}

/// Whether two lists of siblings and all below them have the same names, attributes and texts.
bool areEqual(const tinyxml2::XMLElement* one, const tinyxml2::XMLElement* other) {
    for (; one && other; one = one->NextSiblingElement(), other = other->NextSiblingElement()) {
        if (std::string_view(one->Name()) != other->Name() || textOf(*one) != textOf(*other) ||
            !haveEqualAttributes(*one, *other) || !haveEqualAttributes(*other, *one) ||
            !areEqual(one->FirstChildElement(), other->FirstChildElement()))
            return false;
    }
    return !one && !other;
}

} // namespace
} // namespace zdt

/// What was read is the same when it was written and is read again.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    static const fuzz::Scratch scratch;
    tinyxml2::XMLDocument document;
    if (!loadXml(document, scratch.write("a.xml", fuzz::textOf(data, size)))) {
        ZDT_FUZZ_CHECK(document.NoChildren());
        return 0;
    }
    tinyxml2::XMLDocument copy;
    copyInto(startXml(copy, document.RootElement()->Name()), *document.RootElement());
    const std::string written = scratch.path("written.xml");
    ZDT_FUZZ_CHECK(saveXml(copy, written));
    tinyxml2::XMLDocument again;
    ZDT_FUZZ_CHECK(loadXml(again, written));
    ZDT_FUZZ_CHECK(areEqual(copy.RootElement(), again.RootElement()));
    return 0;
}
