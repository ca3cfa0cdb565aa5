#pragma once

#include <QWidget>

class QLabel;

namespace zdt {

/// One sentence behind an icon, in the colours of a state: `error`, `warn` or `ok`. Without a text it is empty and
/// keeps the height of one line, so that nothing moves when a sentence appears.
class StateLine : public QWidget {
    Q_OBJECT

public:
    explicit StateLine(QWidget* parent = nullptr);

    void tell(const QString& state, const QString& text);
    [[nodiscard]] QString text() const;

private:
    QLabel* _icon;
    QLabel* _text;
};

} // namespace zdt
