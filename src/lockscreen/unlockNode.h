#pragma once

#include "model/resNode.h"
#include "support/xmlFile.h"

#include <string>

namespace zdt {

/// The lock screen of a theme. Its value is the kind of lock screen, read from `unlock/theme.xml` and empty if that
/// can't be read. All designs are kept in the tree, whatever the kind, so that switching back finds the other one.
class UnlockNode : public ResNode {
public:
    explicit UnlockNode(ResNode* parent);

    /// Sets the kind, here and in the child `config`. -1 if that is missing. The file follows when it is saved.
    [[nodiscard]] int setValue(const std::string& value) override;

    /// Whether the theme has the file but it couldn't be read.
    [[nodiscard]] bool isDamaged() const { return !_damaged.path().empty(); }
    [[nodiscard]] DamagedFile& damaged() { return _damaged; }

private:
    DamagedFile _damaged;
};

} // namespace zdt
