#pragma once

#include "editor/previewCatalog.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace zdt {

class PreviewCard;

/// The cards of all previews in their sections: as many columns as fit, each section under a head over its own columns.
class PreviewBoard : public QWidget {
    Q_OBJECT

public:
    explicit PreviewBoard(QWidget* parent = nullptr);

    /// Shows other sections. Cards that were there stay, with their focus.
    void setSections(std::vector<PreviewSection> sections);
    [[nodiscard]] const std::vector<PreviewSection>& sections() const { return _sections; }
    /// The card of a picture; null if there is none.
    [[nodiscard]] PreviewCard* card(const QString& name) const;
    /// The card that was touched last and can be replaced; empty for none.
    [[nodiscard]] const QString& current() const { return _current; }
    void retell();

signals:
    void replaceAsked(QString name);
    void removeAsked(QString name);
    void filesDropped(QString name, const QStringList& files);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Group {
        QWidget* box;
        QLabel* caption;
        QLabel* count;
        QWidget* line;
        std::vector<PreviewCard*> cards;
    };

    [[nodiscard]] Group makeGroup(const PreviewSection& section);
    void placeGroup(Group& group, const SectionPlace& place, int gap, int top) const;
    void rebuild();
    [[nodiscard]] int room() const;
    void arrange();
    void setCurrent(const QString& name);

    std::vector<PreviewSection> _sections;
    std::vector<Group> _groups;
    QString _current;
};

} // namespace zdt
