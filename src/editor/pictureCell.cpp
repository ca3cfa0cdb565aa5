#include "editor/pictureCell.h"

#include "editor/previewCard.h"
#include "kit/labels.h"
#include "kit/localisation.h"
#include "kit/tokens.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace zdt {

PictureCell::PictureCell(QWidget* parent)
    : QWidget(parent) {
    setAcceptDrops(true);
}

void PictureCell::dragEnterEvent(QDragEnterEvent* event) {
    if (draggedPictures(*event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    _isDropTarget = true;
    update();
}

void PictureCell::dragLeaveEvent(QDragLeaveEvent*) {
    _isDropTarget = false;
    update();
}

void PictureCell::dropEvent(QDropEvent* event) {
    _isDropTarget = false;
    update();
    event->acceptProposedAction();
    emit filesDropped(draggedPictures(*event->mimeData()));
}

PictureHead::PictureHead(int side, QWidget* parent)
    : QWidget(parent) {
    auto* title = new ZElidedLabel(this);
    title->setObjectName("pictureGroup");
    title->setProperty("type", "head");
    auto* place = new ZElidedLabel(this);
    place->setObjectName("pictureGroupPlace");
    place->setProperty("type", "hint");
    place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* count = new QLabel(this);
    count->setObjectName("pictureGroupCount");
    count->setProperty("type", "hint");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(side, 0, side, 1);
    row->setSpacing(8);
    row->addWidget(title);
    row->addWidget(place, 1);
    row->addWidget(count);
}

void PictureHead::fill(const PictureGroup& group, int count) {
    findChild<QLabel*>("pictureGroup")->setText(group.title);
    findChild<QLabel*>("pictureGroupPlace")->setText(group.description);
    findChild<QLabel*>("pictureGroupCount")->setText(QString::number(count));
    setToolTip(group.description.toHtmlEscaped());
}

void PictureHead::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::bar);
    painter.fillRect(QRect(0, height() - 1, width(), 1), token::hairline);
}

QStringList draggedPictures(const QMimeData& data) {
    QStringList files = draggedFiles(data);
    const auto isTheme = [](const QString& path) {
        return path.endsWith(".zdt", Qt::CaseInsensitive) || QFileInfo(path + "/description.xml").isFile();
    };
    if (std::any_of(files.begin(), files.end(), isTheme))
        files.clear();
    return files;
}

QString pictureTip(const PictureCellContent& content) {
    const PictureEntry& entry = content.entry;
    QStringList lines;
    if (!entry.text.isEmpty())
        lines += entry.text;
    lines += QString::fromStdString(entry.name);
    if (!entry.sizeHint.isEmpty())
        lines += TextWith("kIcon_systemIcon_static_size", entry.sizeHint);
    if (!entry.uploadedPath.empty())
        lines += QString::fromStdString(entry.uploadedPath);
    for (QString& line : lines)
        line = line.toHtmlEscaped();
    return lines.join("<br>");
}

} // namespace zdt
