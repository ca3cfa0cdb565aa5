#include "modules/description.h"

#include "support/xmlFile.h"

#include <algorithm>

namespace zdt {

Description readDescriptionFile(const std::string& path) {
    Description description;
    tinyxml2::XMLDocument document;
    if (!loadXml(document, path))
        return description;
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
