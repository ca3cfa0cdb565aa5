#pragma once

#include "editor/keyRows.h"
#include "editor/keyWords.h"
#include "kit/thumbnails.h"

#include <QColor>
#include <QImage>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace zdt {

/// A large swatch, or a picture on a checkerboard as it is or smaller.
class KeyPreview : public QWidget {
public:
    explicit KeyPreview(QWidget* parent = nullptr);

    void showColour(const QColor& colour);
    void showPicture(const QImage& picture);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<QColor> _colour;
    QImage _picture;
};

/// What is known of a key, one line each.
struct KeyFact {
    QString label;
    QString value;
    std::optional<QColor> colour;
    bool isMono = false;
};

/// @param copies the values of the modules where they differ, as `differingCopies` gives them
[[nodiscard]] std::vector<KeyFact> factsOf(const KeyRow& row, const KeyWords& words,
                                           const std::vector<std::pair<std::string, std::string>>& copies);

/// Lists facts under one another.
class KeyFacts : public QWidget {
public:
    explicit KeyFacts(QWidget* parent = nullptr);

    void setFacts(const std::vector<KeyFact>& facts);

private:
    QVBoxLayout* _column;
};

} // namespace zdt
