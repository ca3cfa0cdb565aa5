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
    while (!text.empty()) {
        const std::size_t slash = text.find('/');
        path.emplace_back(text.substr(0, slash));
        text.remove_prefix(slash == std::string_view::npos ? text.size() : slash + 1);
    }
    return path;
}

} // namespace zdt
