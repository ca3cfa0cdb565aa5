#include "modules/description.h"

#include "model/typeMask.h"

#include <algorithm>

namespace zdt {

unsigned generationOfVersion(std::string_view version) {
    if (version.empty())
        return unknownGeneration;
    return version.front() == '5' ? 0 : version.front() == '8' ? 1 : generation9Index;
}

Description readDescriptionFile(const std::string& path, DamagedFile* damaged) {
    Description description;
    tinyxml2::XMLDocument document;
    if (!loadXml(document, path)) {
        if (damaged)
            damaged->note(path);
        return description;
    }
    for (const auto* element = document.RootElement()->FirstChildElement(); element;
         element = element->NextSiblingElement()) {
        const std::string_view name = element->Name();
        const bool known = std::any_of(descriptionFields.begin(), descriptionFields.end(),
                                       [&](const DescriptionField& field) { return field.key == name; });
        if (!known)
            continue;
        std::string& value = description[std::string(name)];
        if (const char* text = element->GetText())
            value = text;
    }
    return description;
}

} // namespace zdt
