#pragma once

#include "editor/keyRows.h"

#include <QString>

#include <string>
#include <vector>

namespace zdt {

/// A row of a list of pictures: one picture of a screen, with all the files of the theme that it stands for.
struct PictureEntry {
    std::string module;       ///< Of the page: "launcher", …, or "commonSetting".
    std::string subModule;    ///< Whose picture it is: as `module`, or "phone" on a page of the contacts.
    std::string name;         ///< Of the file in the theme, such as "folder_add_icon.png". It names the row's controls.
    QString text;             ///< What the picture is, in the language of the moment.
    QString sizeHint;         ///< "168*168", or words that there is no rule; empty for a nine-patch.
    std::string format;       ///< ".png" or ".9.png".
    std::string uploadedPath; ///< What the author gave in this session; empty for nothing.
    bool failed = false;      ///< Whether the last try to replace it was refused.
    QString error;            ///< Why, in the language of that moment.
    std::vector<KeyPlace> places; ///< Its files that take part in the theme, the first of which is shown.

    /// What tells it from all others: "<sub-module>/<name>". The layers of screens name it so too.
    [[nodiscard]] std::string key() const { return subModule + "/" + name; }
    [[nodiscard]] bool isNinePatch() const { return format == ".9.png"; }
    /// The path of the file that is shown; empty for none.
    [[nodiscard]] const std::string& file() const { return places.front().value; }
};

/// Pictures of a screen that belong together.
struct PictureGroup {
    QString title;
    QString description; ///< Where on the phone they are seen.
    std::vector<PictureEntry> entries;
};

/// The first entry of a name; null if no group has it.
[[nodiscard]] inline PictureEntry* findEntry(std::vector<PictureGroup>& groups, const std::string& name) {
    for (PictureGroup& group : groups) {
        for (PictureEntry& entry : group.entries) {
            if (entry.name == name)
                return &entry;
        }
    }
    return nullptr;
}

} // namespace zdt
