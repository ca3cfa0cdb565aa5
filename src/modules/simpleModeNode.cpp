#include "modules/simpleModeNode.h"

#include "model/returnCode.h"
#include "model/textResNode.h"

#include <algorithm>
#include <map>

namespace zdt {

SimpleModeImplNode::SimpleModeImplNode(ResNode* parent, std::string name, std::vector<ResNode*> sources)
    : ResNode(parent, typeMask::everywhere, std::move(name))
    , _sources(std::move(sources)) {}

SimpleModeImplNode::~SimpleModeImplNode() = default;

bool SimpleModeImplNode::takesPart() const {
    return std::any_of(_sources.begin(), _sources.end(), [](const ResNode* each) { return each->isApplicable(); });
}

std::string SimpleModeImplNode::majorityValue() const {
    std::map<std::string, int> counts;
    for (const ResNode* each : _sources) {
        if (!each->isApplicable())
            continue;
        const auto* colour = dynamic_cast<const ColorTextResNode*>(each);
        if (!colour) {
            ++counts[each->value()];
            break;
        }
        const std::string digits = colour->splitColour(colour->value()).second;
        ++counts[digits.empty() ? digits : "#" + digits];
    }
    const auto fewer = [](const auto& left, const auto& right) { return left.second < right.second; };
    const auto most = std::max_element(counts.begin(), counts.end(), fewer);
    return most == counts.end() ? std::string() : most->first;
}

int SimpleModeImplNode::validate(const std::string& value) {
    if (_sources.empty())
        return fail(returnCode::notFound);
    for (ResNode* each : _sources) {
        if (const int code = each->validate(value))
            return fail(code);
    }
    return returnCode::success;
}

int SimpleModeImplNode::setValue(const std::string& value) {
    if (const int code = validate(value))
        return code;
    int result = returnCode::success;
    for (ResNode* each : _sources) {
        int code = each->setValue(value);
        if (auto* colour = dynamic_cast<ColorTextResNode*>(each); colour && code == returnCode::success)
            code = colour->applyAlphaLimit(value);
        if (result == returnCode::success)
            result = code;
    }
    return result;
}

bool SimpleModeImplNode::save(bool all) {
    std::vector<ResNode*> blocks;
    for (const ResNode* each : _sources) {
        if (std::find(blocks.begin(), blocks.end(), each->parent()) == blocks.end())
            blocks.push_back(each->parent());
    }
    // All are saved, whatever becomes of the first.
    return std::count_if(blocks.begin(), blocks.end(), [all](ResNode* block) { return !block->save(all); }) == 0;
}

} // namespace zdt
