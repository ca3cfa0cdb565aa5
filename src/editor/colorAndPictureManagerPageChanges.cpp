#include "canvas/drawPictrue.h"
#include "canvas/phoneView.h"
#include "canvas/previewComposition.h"
#include "editor/batchUpload.h"
#include "editor/codeWords.h"
#include "editor/colorAndPictureManagerPage.h"
#include "editor/colorAndPictureSetPage.h"
#include "editor/colorItem.h"
#include "editor/colorSetPage.h"
#include "editor/colourTyping.h"
#include "editor/pictureSet.h"
#include "editor/screenParts.h"
#include "editor/screenPictures.h"
#include "kit/colourDialog.h"
#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/notificationNames.h"
#include "model/resNode.h"
#include "model/returnCode.h"

#include <QLineEdit>

#include <algorithm>
#include <set>

/// What the controls of the page do.
namespace zdt {

namespace {

/// Module, screen and two more at least.
constexpr qsizetype fewestTokens = 4;
/// A capture of the composed preview, not of the phone.
constexpr std::intptr_t ofPreview = 0;
constexpr const char* colourToken = "color";
constexpr const char* previewToken = "preview";
constexpr const char* optionToken = "option";

std::vector<std::string> valuesOf(const ThemeResource& theme, const ItemPath& path) {
    std::vector<std::string> values;
    for (const ResNode* source : theme.simpleSources(path.block(), path.item))
        values.push_back(source->value());
    return values;
}

CColorItem* rowAround(QObject* control) {
    for (; control; control = control->parent()) {
        if (auto* row = qobject_cast<CColorItem*>(control))
            return row;
    }
    return nullptr;
}

/// The key of the picture that is pointed at in the list or grid that tells of it; empty for none.
std::string hoveredPicture(const QWidget& sender) {
    const auto* set = qobject_cast<const PictureSet*>(&sender);
    return set ? set->hoveredKey().toStdString() : std::string();
}

/// The colours of a screen's rows, each once.
QList<QColor> coloursOf(const PreviewComposition& composition) {
    QList<QColor> colours;
    std::set<QRgb> known;
    for (const PreviewPart& part : composition.parts()) {
        if (part.isColorFill && known.insert(part.colour()).second)
            colours.append(QColor::fromRgba(part.colour()));
    }
    return colours;
}

} // namespace

void CColorAndPictureManagerPage::Notify(const Notification& message) {
    ZPage::Notify(message);
    if (message.name == notify::MESSAGE_SET_PREVIEW_INDEX && isVisible())
        return showScreen(static_cast<int>(message.wParam));
    if (message.name == notify::Refulsh_Preview_Picture_Msg && isVisible())
        return startAnew();
    if (message.name == notify::Reload_history_themes)
        return reload();
    const auto* sender = qobject_cast<const QWidget*>(message.sender.data());
    if (!sender || !isAncestorOf(sender) || !hasScreen())
        return;
    const QString name = sender->objectName();
    if (name.contains(colourRowName)) {
        const CColorItem* item = rowAround(message.sender);
        const ColourRow* row = item && view().set ? view().set->colours().rowOf(*item) : nullptr;
        if (row && message.name == notify::listitemmousenter)
            pointAt(row->path.key());
        else if (row && message.name == notify::listitemmousleave)
            pointAtNothing();
        return;
    }
    if (message.name == notify::Notify_ScreenCapture_Msg && message.wParam == ofPreview)
        return captureScreen();
    if (message.name == notify::Notify_Pic_Hint)
        return hintPicture(hoveredPicture(*sender));
    if (message.name == notify::Notify_Pic_Hint_Reset)
        return clearPictureHint();
    if (message.name == notify::click && name == pictureControl::uploadMany)
        return _batch->askFiles();
    if (message.name == notify::click && name == pictureControl::tellHow)
        return _batch->tellHow();
    if (const QStringList tokens = name.split('|'); tokens.size() >= fewestTokens)
        dispatch(message.sender, message.name, tokens);
}

void CColorAndPictureManagerPage::dispatch(QObject* sender, const QString& message, const QStringList& tokens) {
    const int index = indexOf(tokens[1]);
    if (index < 0 || !theme() || tokens[0] != QString::fromStdString(_module))
        return;
    const bool isClick = message == notify::click;
    const QString& last = tokens.last();
    if (isClick && last == optionToken) {
        setPage(index).selectTab(tokens[2] == colourToken ? CColorAndPictureSetPage::colourTab
                                                          : CColorAndPictureSetPage::pictureTab);
    } else if (isClick && tokens[2] == previewToken && last == rowControl::button) {
        bench().notifications().SendNotify(this, notify::MESSAGE_SET_PREVIEW_INDEX, index);
    } else if (CColorItem* item = rowAround(sender)) {
        if (isClick)
            clickRow(*item, last);
        else if (const auto* field = qobject_cast<QLineEdit*>(sender); field && message == notify::textchanged)
            typeColour(*item, *field);
    }
}

void CColorAndPictureManagerPage::clickRow(CColorItem& item, const QString& control) {
    if (control == rowControl::button)
        chooseColour(item);
    else if (control == rowControl::checkBox)
        switchShadow(item);
    else if (control == rowControl::reset)
        resetColour(item);
    else if (control == rowControl::tip)
        item.showTip();
}

bool CColorAndPictureManagerPage::mayEdit(const CColorItem& item) {
    if (item.content().isOn.value_or(true))
        return true;
    tellNote(this, "key_simple_checkbox_warn");
    return false;
}

void CColorAndPictureManagerPage::typeColour(CColorItem& item, const QLineEdit& field) {
    if (!mayEdit(item))
        return item.showColour(item.content().colour);
    if (const std::optional<QColor> colour = item.typed(field))
        storeColour(item, *colour, &field);
}

void CColorAndPictureManagerPage::storeColour(CColorItem& item, const QColor& colour, const QLineEdit* typedIn) {
    const ColourRow* row = view().set->colours().rowOf(item);
    if (!row || colour == item.content().colour)
        return;
    const ItemPath path = row->path;
    if (const int code = changeItem(*theme(), path, composedColour(colour).toStdString())) {
        tellNote(this, codeKey(code));
        return item.showColour(item.content().colour);
    }
    item.showColour(colour, typedIn);
    colourChanged(path);
}

void CColorAndPictureManagerPage::colourChanged(const ItemPath& path) {
    showChanged(path);
    emit edited();
    bench().notifications().SendNotify(this, notify::Notify_Error_List_refresh);
}

void CColorAndPictureManagerPage::showChanged(const ItemPath& path) {
    const std::string key = path.key();
    const QColor colour = itemColour(*theme(), path);
    for (View& each : _views) {
        if (each.composition && colour.isValid())
            each.composition->setColour(key, colour.rgba());
    }
    // An outline's veil would hide what the colour looks like.
    _phone->picture().setOutlined({});
    _phone->picture().refresh();
    view().set->refreshColour(*theme(), path);
    _stripTimer.start();
    _outlineTimer.start();
}

void CColorAndPictureManagerPage::refreshVisibility() {
    for (View& each : _views) {
        if (each.composition)
            each.composition->setDescription(describe(each));
    }
}

void CColorAndPictureManagerPage::tryColour(const std::string& key, const QColor& colour) {
    _tried = colour;
    const std::optional<ItemPath> path = itemPathOf(key);
    if (_tryTimer.isActive() || !theme() || !path || _tried == _written)
        return;
    // What can't be stored now is said once it is chosen.
    _written = _tried;
    if (changeItem(*theme(), *path, composedColour(colour).toStdString()) != returnCode::success)
        return;
    showChanged(*path);
    _tryTimer.start();
}

void CColorAndPictureManagerPage::chooseColour(CColorItem& item) {
    const ColourRow* row = view().set->colours().rowOf(item);
    if (!row || !mayEdit(item))
        return;
    const ItemPath path = row->path;
    const std::vector<std::string> before = valuesOf(*theme(), path);
    const ZColourDialog::Request request{item.content().colour, defaultItemColour(*theme(), path),
                                         coloursOf(*view().composition)};
    // The last colour tried is written even if the author stops within the interval.
    const QMetaObject::Connection late =
        connect(&_tryTimer, &QTimer::timeout, this, [this, path] { tryColour(path.key(), _tried); });
    _written = item.content().colour;
    bool wasTried = false;
    const std::optional<QColor> chosen =
        ZColourDialog::choose(request, Text, this, [this, path, &wasTried](const QColor& colour) {
            wasTried = true;
            tryColour(path.key(), colour);
        });
    disconnect(late);
    _tryTimer.stop();
    if (!theme() || (!chosen && !wasTried))
        return;
    // Sources may have differed: what was tried and not taken goes back to what each of them was.
    const int code = chosen ? changeItem(*theme(), path, composedColour(*chosen).toStdString())
                            : theme()->changeSimpleSources(path.block(), path.item, before);
    if (code != returnCode::success)
        tellNote(this, codeKey(code));
    colourChanged(path);
}

void CColorAndPictureManagerPage::switchShadow(CColorItem& item) {
    const ColourRow* row = view().set->colours().rowOf(item);
    if (!row || row->switchItem.empty())
        return;
    const ItemPath path = row->path;
    const ItemPath switchPath{path.module, path.group, row->switchItem};
    const bool isOn = !item.content().isOn.value_or(true);
    if (const int code = changeItem(*theme(), switchPath, isOn ? "true" : "false")) {
        tellNote(this, codeKey(code));
        return view().set->refreshColour(*theme(), path);
    }
    refreshVisibility();
    colourChanged(path);
}

void CColorAndPictureManagerPage::resetColour(CColorItem& item) {
    const ColourRow* row = view().set->colours().rowOf(item);
    if (!row)
        return;
    const ItemPath path = row->path;
    // The button goes with what it puts back, and would hand the keyboard to the next row.
    item.edit();
    int code = resetItem(*theme(), path);
    if (code == returnCode::success && !row->switchItem.empty())
        code = resetItem(*theme(), {path.module, path.group, row->switchItem});
    if (code != returnCode::success)
        return tellNote(this, codeKey(code));
    refreshVisibility();
    colourChanged(path);
    // A field in which the author was typing follows too.
    item.showColour(item.content().colour);
}

} // namespace zdt
