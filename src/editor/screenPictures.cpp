#include "editor/screenPictures.h"

#include "editor/pictrueArrySetPage.h"
#include "editor/pictureSetPage.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/lateSignals.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/notifications.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace zdt {

namespace {
constexpr int footHeight = 64;
constexpr int side = 16;
} // namespace

ScreenPictures::ScreenPictures(const QString& module, const QString& screen, CPaintManagerUI& notifications,
                               QWidget* parent)
    : QWidget(parent)
    , _stack(new QStackedWidget(this))
    , _list(new CPictureSetPage(this))
    , _grid(new CPictrueArrySetPage(this))
    , _many(makeButton(pictureControl::uploadMany))
    , _how(makeButton(pictureControl::tellHow))
    , _hint(new QLabel(this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (PictureSet* set : sets()) {
        set->setScreen(module, screen);
        _stack->addWidget(set);
    }
    column->addWidget(_stack, 1);
    auto* foot = new QFrame(this);
    foot->setProperty("region", "foot");
    foot->setFixedHeight(footHeight);
    auto* row = new QHBoxLayout(foot);
    row->setContentsMargins(side, 0, side / 2, 0);
    row->setSpacing(side / 4);
    row->addWidget(_many);
    row->addSpacing(side / 4);
    row->addWidget(_hint, 1);
    row->addWidget(_how);
    column->addWidget(foot);

    setButtonIcon(_many, Icon::FileUpload);
    _many->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    _hint->setProperty("type", "hint");
    _hint->setWordWrap(true);
    _how->setProperty("kind", "quiet");
    _how->setIcon(icon(Icon::HelpOutline, token::iconPlain));
    for (QPushButton* button : {_many, _how})
        connect(button, &QPushButton::clicked, this,
                [&notifications, button] { notifications.SendNotify(button, notify::click); });
    retell();
}

ScreenPictures::~ScreenPictures() {
    hearNoChildren(this);
}

QPushButton* ScreenPictures::makeButton(const QString& name) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    return button;
}

std::array<PictureSet*, 2> ScreenPictures::sets() const {
    return {_list, _grid};
}

void ScreenPictures::setGroups(const std::vector<PictureGroup>& groups) {
    for (PictureSet* set : sets())
        set->setGroups(groups);
}

void ScreenPictures::updateEntry(const PictureEntry& entry) {
    for (PictureSet* set : sets())
        set->updateEntry(entry);
}

void ScreenPictures::setFilter(const QString& text, bool changedOnly) {
    for (PictureSet* set : sets())
        set->setFilter(text, changedOnly);
}

bool ScreenPictures::has(const std::string& key) const {
    const auto isIt = [&key](const PictureEntry& entry) { return entry.key() == key; };
    const std::vector<PictureGroup>& groups = _list->groups();
    return std::any_of(groups.begin(), groups.end(), [&](const PictureGroup& group) {
        return std::any_of(group.entries.begin(), group.entries.end(), isIt);
    });
}

void ScreenPictures::showPicture(const QString& key) {
    auto* set = static_cast<PictureSet*>(_stack->currentWidget());
    set->showPicture(key);
    set->setFocus(Qt::OtherFocusReason);
}

int ScreenPictures::count() const {
    return _list->entryCount();
}

void ScreenPictures::setGrid(bool isGrid) {
    _stack->setCurrentWidget(isGrid ? static_cast<QWidget*>(_grid) : _list);
}

void ScreenPictures::retell() {
    _many->setText(Text("kPictures_many"));
    _many->setToolTip(Text("kPictures_many_tip"));
    _hint->setText(Text("kPictures_many_hint"));
    _how->setToolTip(Text("kPictures_many_how"));
    _how->setAccessibleName(_how->toolTip());
    for (PictureSet* set : sets())
        set->retell();
}

} // namespace zdt
