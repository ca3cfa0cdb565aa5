#include "editor/positionFrame.h"

#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/textLookup.h"

#include <QIntValidator>

namespace zdt {

namespace {

constexpr std::array<const char*, 4> editNames{"Position_X_Edit", "Position_Y_Edit", "Position_W_Edit",
                                               "Position_H_Edit"};
/// More than any screen has, in pixels.
constexpr int largest = 9999;

} // namespace

CPositionFrame::CPositionFrame(Workbench& bench, QWidget* parent)
    : ZPage(bench, "res_edit_unlock_change_positionframe.xml", parent) {
    relabel(this, Text);
    for (std::size_t at = 0; at < editNames.size(); ++at) {
        const bool isSize = at >= 2;
        _edits[at] = &control<QLineEdit>(editNames[at]);
        _edits[at]->setValidator(new QIntValidator(isSize ? 0 : -largest, largest, _edits[at]));
        connect(_edits[at], &QLineEdit::textEdited, this,
                [this, at] { this->bench().notifications().SendNotify(_edits[at], notify::textchanged); });
    }
}

void CPositionFrame::Notify(const Notification& message) {
    // Of what is typed into its own edits the owner hears as well, which reads them.
    const bool isEdit =
        message.name == notify::textchanged && message.sender && message.sender->objectName().contains("Edit");
    if (!isEdit)
        ZPage::Notify(message);
}

void CPositionFrame::setPosition(const QRect& place) {
    const std::array<int, 4> numbers{place.x(), place.y(), place.width(), place.height()};
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        bool isNumber = false;
        const bool means = _edits[at]->text().toInt(&isNumber) == numbers[at] && isNumber;
        if (!means)
            _edits[at]->setText(QString::number(numbers[at]));
    }
}

void CPositionFrame::clear() {
    for (QLineEdit* edit : _edits)
        edit->clear();
}

std::optional<QRect> CPositionFrame::position() const {
    std::array<int, 4> numbers{};
    for (std::size_t at = 0; at < numbers.size(); ++at) {
        bool isNumber = false;
        numbers[at] = _edits[at]->text().toInt(&isNumber);
        if (!isNumber)
            return std::nullopt;
    }
    return QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

} // namespace zdt
