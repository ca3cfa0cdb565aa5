#include "kit/kitControls.h"

#include "kit/countButton.h"
#include "kit/countChip.h"
#include "kit/emptyState.h"
#include "kit/flowView.h"
#include "kit/labels.h"
#include "kit/listView.h"
#include "kit/optionCard.h"
#include "kit/searchField.h"
#include "kit/segmentedControl.h"
#include "kit/skinLoader.h"
#include "kit/switchControl.h"
#include "kit/windowButton.h"

namespace zdt {

namespace {

template <typename Control>
void add(SkinLoader& loader, const char* className) {
    loader.registerControl(className, [](QWidget* parent) { return new Control(parent); });
}

} // namespace

void registerKitControls(SkinLoader& loader) {
    add<ZBadge>(loader, "ZBadge");
    add<ZCountButton>(loader, "ZCountButton");
    add<ZCountChip>(loader, "ZCountChip");
    add<ZElidedLabel>(loader, "ZElidedLabel");
    add<ZEmptyState>(loader, "ZEmptyState");
    add<ZFlowView>(loader, "ZFlowView");
    add<ZListView>(loader, "ZListView");
    add<ZOptionCard>(loader, "ZOptionCard");
    add<ZSearchField>(loader, "ZSearchField");
    add<ZSegmented>(loader, "ZSegmented");
    add<ZSwitch>(loader, "ZSwitch");
    add<WindowButton>(loader, "WindowButton");
}

} // namespace zdt
