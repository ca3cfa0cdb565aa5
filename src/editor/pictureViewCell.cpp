#include "editor/pictureViewCell.h"

#include "editor/pictureThumbnail.h"
#include "kit/icons.h"
#include "kit/kitStyle.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace zdt {

namespace {

constexpr int thumbnailSide = 80;
constexpr int buttonSide = 24;
constexpr int iconSide = 16;
constexpr int inset = 8;

/// The place for more pictures is one button.
class AddCell : public QWidget {
public:
    explicit AddCell(QWidget* parent)
        : QWidget(parent)
        , button(new QPushButton(this)) {
        setButtonIcon(button, Icon::AddPhotoAlternate, 24);
        button->setProperty("kind", "frameAdd");
        button->setFocusPolicy(Qt::NoFocus);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(button);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    QPushButton* button;
};

} // namespace

CPictureViewCell::CPictureViewCell(QWidget* parent)
    : QWidget(parent)
    , _thumbnail(new PictureThumbnail(thumbnailSide, this))
    , _number(new QLabel(this))
    , _check(makeButton("visibility"))
    , _replace(makeButton("file_upload"))
    , _delete(makeButton("delete_outline")) {
    _number->setObjectName("frameNumber");
    _number->setProperty("type", "monoHint");
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    buttons->addWidget(_number);
    buttons->addStretch();
    for (QPushButton* button : {_check, _replace, _delete})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(inset, inset, inset, inset);
    column->setSpacing(4);
    column->addWidget(_thumbnail, 0, Qt::AlignHCenter);
    column->addLayout(buttons);
    connect(_thumbnail, &PictureThumbnail::clicked, this, &CPictureViewCell::checkClicked);
    connect(_check, &QPushButton::clicked, this, &CPictureViewCell::checkClicked);
    connect(_replace, &QPushButton::clicked, this, &CPictureViewCell::replaceClicked);
    connect(_delete, &QPushButton::clicked, this, &CPictureViewCell::deleteClicked);
}

QPushButton* CPictureViewCell::makeButton(const QString& name) {
    auto* button = new QPushButton(this);
    button->setProperty("kind", "quiet");
    button->setProperty("scale", "row");
    button->setFixedSize(buttonSide, buttonSide);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(true);
    setButtonIcon(button, iconNamed(name).value_or(Icon::Image), iconSide);
    return button;
}

void CPictureViewCell::fill(const QString& key, int number, const std::string& file, Thumbnails& thumbnails) {
    _thumbnail->show(thumbnails, file);
    _thumbnail->setToolTip(QString::fromStdString(file).toHtmlEscaped());
    _number->setText(QString::number(number + 1));
    const QString begin = key + QString::number(number);
    const auto name = [&begin](QPushButton* button, const char* ending, const char* tipKey) {
        button->setObjectName(begin + ending);
        button->setToolTip(Text(QString::fromUtf8(tipKey)));
        button->setAccessibleName(button->toolTip());
    };
    name(_check, itemCheckEnding, "kFrames_check");
    name(_replace, itemReplaceEnding, "kFrames_replace");
    name(_delete, itemDeleteEnding, "kFrames_delete");
}

void CPictureViewCell::setState(const CellState& state) {
    _state = state;
    for (QPushButton* button : {_check, _replace, _delete})
        button->setFocusPolicy(state.current ? Qt::TabFocus : Qt::NoFocus);
    update();
}

void CPictureViewCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(_state.current ? token::accent : _state.hovered ? token::fieldBorderHover : token::hairline);
    painter.setBrush(_state.current ? token::cardChosen : token::card);
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), token::radiusCard, token::radiusCard);
}

CPictureViewDataSource::CPictureViewDataSource(QString key, QObject* parent)
    : ZFlowViewDataSource(parent)
    , _key(std::move(key)) {
    connect(&_thumbnails, &Thumbnails::ready, this, [this] {
        if (count() > 0)
            emit changed(0, count() - 1);
    });
}

void CPictureViewDataSource::show(const std::vector<std::string>& files, bool hasRoom) {
    _files = files;
    _hasRoom = hasRoom;
    emit reset();
}

QWidget* CPictureViewDataSource::makeCell(int kind, QWidget* parent) {
    if (kind == 1) {
        auto* cell = new AddCell(parent);
        connect(cell->button, &QPushButton::clicked, this, &CPictureViewDataSource::addClicked);
        return cell;
    }
    auto* cell = new CPictureViewCell(parent);
    const auto row = [cell] { return cell->property("row").toInt(); };
    connect(cell, &CPictureViewCell::checkClicked, this, [this, row] { emit checkClicked(row()); });
    connect(cell, &CPictureViewCell::replaceClicked, this, [this, row] { emit replaceClicked(row()); });
    connect(cell, &CPictureViewCell::deleteClicked, this, [this, row] { emit deleteClicked(row()); });
    return cell;
}

void CPictureViewDataSource::fillCell(QWidget* cell, int index) {
    if (isAdding(index)) {
        QPushButton* button = static_cast<AddCell*>(cell)->button;
        button->setObjectName(_key + itemAddEnding);
        button->setToolTip(Text("kFrames_add"));
        button->setAccessibleName(Text("kFrames_add"));
        return;
    }
    cell->setProperty("row", index);
    static_cast<CPictureViewCell*>(cell)->fill(_key, index, _files[static_cast<std::size_t>(index)], _thumbnails);
}

void CPictureViewDataSource::showState(QWidget* cell, int index, const CellState& state) {
    if (!isAdding(index))
        static_cast<CPictureViewCell*>(cell)->setState(state);
}

QString CPictureViewDataSource::accessibleName(int index) const {
    return isAdding(index) ? Text("kFrames_add") : TextWith("kFrames_frame", index + 1);
}

} // namespace zdt
