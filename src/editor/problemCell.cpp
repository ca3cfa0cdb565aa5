#include "editor/problemCell.h"

#include "editor/moduleWords.h"
#include "editor/problemWords.h"
#include "kit/checker.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"
#include "lockscreen/amazingUnlockNode.h"
#include "model/returnCode.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace zdt {

namespace {

constexpr int thumbnailSide = 40;
constexpr int thumbnailIcon = 24;
constexpr int padding = 17;
constexpr int iconSide = 20;
constexpr int gap = 12;
constexpr int buttonGap = 8;
constexpr int placeWidth = 148;
constexpr int leastWithPlace = 880;
constexpr int goToWidth = 64;
constexpr int restoreWidth = 112;

Icon emptyIcon(ProblemSubject subject, bool isMissing) {
    if (subject == ProblemSubject::texts)
        return Icon::TextFields;
    if (subject == ProblemSubject::colours)
        return Icon::Palette;
    return isMissing && subject == ProblemSubject::pictures ? Icon::AddPhotoAlternate : Icon::BrokenImage;
}

ZElidedLabel* label(QWidget* parent, const char* name, const char* type) {
    auto* made = new ZElidedLabel(parent);
    made->setObjectName(name);
    made->setProperty("type", type);
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return made;
}

} // namespace

ProblemThumbnail::ProblemThumbnail(QWidget* parent)
    : QWidget(parent) {
    setFixedSize(thumbnailSide, thumbnailSide);
}

void ProblemThumbnail::show(const ProblemRow& row, const QPixmap& picture) {
    _picture = picture;
    _colour = QColor(QString::fromStdString(row.colour));
    _subject = row.subject;
    _isMissing = row.problem.code == returnCode::missingFile || row.problem.code == incompleteMusic;
    update();
}

void ProblemThumbnail::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF place(rect());
    paintChecker(painter, place, token::radiusField);
    QPainterPath corners;
    corners.addRoundedRect(place, token::radiusField, token::radiusField);
    painter.setClipPath(corners);
    if (_colour.isValid()) {
        painter.fillRect(place, _colour);
    } else if (!_picture.isNull()) {
        const QSizeF fitted = _picture.deviceIndependentSize();
        painter.drawPixmap(QPointF((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), _picture);
    } else {
        const double from = (thumbnailSide - thumbnailIcon) / 2.0;
        paintIcon(painter, QRectF(from, from, thumbnailIcon, thumbnailIcon), emptyIcon(_subject, _isMissing),
                  token::textOff);
    }
    painter.setClipping(false);
    painter.setPen(token::hairline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(.5, .5, -.5, -.5), token::radiusField - .5, token::radiusField - .5);
}

ProblemCell::ProblemCell(QWidget* parent)
    : QWidget(parent)
    , _thumbnail(new ProblemThumbnail(this))
    , _reason(label(this, "reason", "reason"))
    , _detail(label(this, "detail", "monoHint"))
    , _placeWords(label(this, "place", "hint"))
    , _goTo(makeButton("goTo", goToWidth))
    , _restore(makeButton("restore", restoreWidth)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(padding + iconSide + gap, 0, padding, 0);
    row->setSpacing(gap);
    row->addWidget(_thumbnail);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(_reason);
    texts->addWidget(_detail);
    texts->addStretch();
    row->addLayout(texts, 1);
    _placeWords->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    _placeWords->setFixedWidth(placeWidth);
    _detail->setElideMode(Qt::ElideMiddle);
    row->addWidget(_placeWords);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(buttonGap);
    buttons->addWidget(_goTo);
    buttons->addWidget(_restore);
    row->addLayout(buttons);
    connect(_goTo, &QPushButton::clicked, this, &ProblemCell::goToClicked);
    connect(_restore, &QPushButton::clicked, this, &ProblemCell::restoreClicked);
}

QPushButton* ProblemCell::makeButton(const char* name, int width) {
    auto* button = new QPushButton(this);
    button->setObjectName(name);
    button->setProperty("scale", "small");
    button->setFixedWidth(width);
    // Tab goes to the buttons of the current row alone, and Enter presses them, not the row.
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(true);
    return button;
}

void ProblemCell::fill(const ProblemRow& row, const QPixmap& picture, CardPlace place) {
    _place = place;
    _thumbnail->show(row, picture);
    _reason->setText(reasonText(row.reason));
    _detailWords = QString::fromStdString(row.detail);
    const std::string& full = row.problem.path.empty() ? row.problem.key : row.problem.path;
    _detail->setToolTip(QString::fromStdString(full).toHtmlEscaped());
    _placeWords->setText(placeText(row));
    sayDetail();
    const bool canRestore = row.restore != ProblemRestore::none;
    _goTo->setText(Text("kProblems_go_to"));
    _goTo->setToolTip(Text("kProblems_go_to_tip"));
    _restore->setText(Text("kProblems_restore"));
    _restore->setToolTip(Text(canRestore ? "kProblems_restore_tip" : "kProblems_no_restore_tip"));
    _restore->setEnabled(canRestore);
    layout()->setContentsMargins(padding + iconSide + gap, place.first ? 1 : 0, padding, 1);
    update();
}

/// Where there is no room for a column of its own, the place stands behind the file's name.
void ProblemCell::sayDetail() {
    const bool hasColumn = width() >= leastWithPlace;
    _placeWords->setVisible(hasColumn);
    _detail->setText(hasColumn ? _detailWords : _detailWords + " · " + _placeWords->text());
}

void ProblemCell::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    sayDetail();
}

void ProblemCell::setState(const CellState& state) {
    if (state == _state)
        return;
    _state = state;
    for (QPushButton* button : {_goTo, _restore})
        button->setFocusPolicy(state.current ? Qt::TabFocus : Qt::NoFocus);
    update();
}

void ProblemCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), token::window);
    // Of the card that the whole group has, this row's part is seen: the rest lies outside.
    const double above = _place.first ? 0 : token::radiusCard * 2;
    const double below = _place.last ? 0 : token::radiusCard * 2;
    const QRectF card = QRectF(rect()).adjusted(.5, .5 - above, -.5, below - .5);
    painter.setPen(token::hairline);
    painter.setBrush(_state.current ? token::rowSelected : _state.hovered ? token::rowHover : token::card);
    painter.drawRoundedRect(card, token::radiusCard, token::radiusCard);
    if (!_place.last)
        painter.fillRect(QRect(1, rect().bottom(), width() - 2, 1), token::hairlineRow);
    const double middle = (QWidget::height() + (_place.first ? 0 : -1)) / 2.0;
    paintIcon(painter, QRectF(padding, middle - iconSide / 2.0, iconSide, iconSide), Icon::Error, token::danger);
}

ProblemHead::ProblemHead(QWidget* parent)
    : QWidget(parent)
    , _icon(new QLabel(this))
    , _name(new QLabel(this))
    , _count(new QLabel(this)) {
    constexpr int top = 16;
    constexpr int bottom = 4;
    _name->setObjectName("groupName");
    _name->setProperty("type", "strong");
    _name->setTextFormat(Qt::PlainText);
    _count->setObjectName("groupCount");
    _count->setProperty("type", "hint");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, top, 0, bottom);
    row->setSpacing(8);
    row->addWidget(_icon);
    row->addWidget(_name);
    row->addWidget(_count);
    row->addStretch();
}

void ProblemHead::fill(const std::string& group, int count) {
    constexpr int side = 18;
    _icon->setPixmap(iconPixmap(moduleIcon(group), token::iconPlain, side, devicePixelRatioF()));
    _name->setText(moduleWord(group));
    _count->setText(QString::number(count));
}

void ProblemHead::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), token::window);
}

} // namespace zdt
