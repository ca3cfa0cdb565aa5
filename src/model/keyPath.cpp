#include "model/keyPath.h"

namespace zdt {

std::string joinKeyPath(const KeyPath& path) {
    std::string text;
    for (const std::string& name : path) {
        if (&name != &path.front())
            text += '/';
        text += name;
    }
    return text;
}

KeyPath splitKeyPath(std::string_view text) {
    KeyPath path;
    if (text.empty())
        return path;
    for (std::size_t slash = text.find('/'); slash != std::string_view::npos; slash = text.find('/')) {
        path.emplace_back(text.substr(0, slash));
        text.remove_prefix(slash + 1);
    }
    path.emplace_back(text);
    return path;
}

} // namespace zdt
