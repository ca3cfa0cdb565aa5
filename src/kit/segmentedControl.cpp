#include "kit/segmentedControl.h"

#include "kit/exclusiveFocus.h"
#include "kit/tokens.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace zdt {

ZSegmented::ZSegmented(QWidget* parent)
    : QWidget(parent)
    , _row(new QHBoxLayout(this))
    , _group(new QButtonGroup(this)) {
    _row->setContentsMargins(2, 2, 2, 2);
    _row->setSpacing(0);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(_group, &QButtonGroup::idToggled, this, [this](int index, bool on) {
        if (on)
            emit currentChanged(index);
    });
}

QStringList ZSegmented::labels() const {
    QStringList labels;
    for (const QAbstractButton* button : _group->buttons())
        labels += button->text();
    return labels;
}

void ZSegmented::setLabels(const QStringList& labels) {
    const QSignalBlocker quiet(_group);
    const QList<QAbstractButton*> standing = _group->buttons();
    for (int index = 0; index < labels.size(); ++index) {
        if (index < standing.size())
            standing[index]->setText(labels[index]);
        else
            add(labels[index], index);
    }
    for (qsizetype index = labels.size(); index < standing.size(); ++index)
        delete standing[index];
    if (currentIndex() < 0)
        setCurrentIndex(0);
}

void ZSegmented::add(const QString& label, int index) {
    auto* button = new QPushButton(label, this);
    button->setObjectName(QString("segment%1").arg(index));
    button->setProperty("kind", "segment");
    button->setCheckable(true);
    button->setAutoDefault(false);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    _group->addButton(button, index);
    tabToChosen({button});
    _row->addWidget(button);
}

int ZSegmented::currentIndex() const {
    return _group->checkedId();
}

void ZSegmented::setCurrentIndex(int index) {
    if (QAbstractButton* button = _group->button(index))
        button->setChecked(true);
}

void ZSegmented::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(token::segmentedBack);
    painter.drawRoundedRect(QRectF(rect()), token::radiusSegmented, token::radiusSegmented);
}

} // namespace zdt
