#pragma once

#include "model/resNode.h"

#include <string>
#include <vector>

namespace zdt {

/// A shared setting, such as the highlight colour of an application: it stands for a set of leaves of the theme's tree,
/// its sources, and holds no value and no file of its own. The sources must outlive it.
///
/// The sources are those of every generation. All of them are set, but only those that take part in the theme tell
/// what the setting's value is.
class SimpleModeImplNode : public ResNode {
public:
    /// @param sources each of them once
    SimpleModeImplNode(ResNode* parent, std::string name, std::vector<ResNode*> sources);
    /// The sources stay.
    ~SimpleModeImplNode() override;

    [[nodiscard]] const std::vector<ResNode*>& sources() const { return _sources; }

    /// Whether a source takes part in the theme.
    [[nodiscard]] bool takesPart() const;
    /// What most sources hold, colours compared and given without their alpha; of equally many the first by text. A
    /// source that is no colour ends the count. Empty if none takes part.
    [[nodiscard]] std::string majorityValue() const;

    /// The code of the first source that refuses the value; -14 without sources.
    [[nodiscard]] int validate(const std::string& value) override;
    /// Sets all sources, or none if one refuses the value. A colour's alpha is then scaled to the source's limit.
    [[nodiscard]] int setValue(const std::string& value) override;
    /// Saves the block of every source. False if one of them can't be; the others are saved nevertheless.
    [[nodiscard]] bool save(bool all) override;

private:
    std::vector<ResNode*> _sources;
};

} // namespace zdt
