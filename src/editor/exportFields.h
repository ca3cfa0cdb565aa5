#pragma once

#include "editor/exportForm.h"

#include <QObject>
#include <QTimer>

#include <array>

class QButtonGroup;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

namespace zdt {

class StateLine;

/// The left half of the export page: what a package says of itself. It holds what the author types and changes it only
/// by the rules of the version.
class ExportFields : public QObject {
    Q_OBJECT

public:
    /// Finds its controls below `page`.
    explicit ExportFields(QWidget& page);

    /// Shows other values in the place of all that was typed.
    void fill(const ExportForm& form, bool hasVideoLock);
    /// What is typed, without blanks at the ends of names and without characters that no file can hold.
    [[nodiscard]] ExportForm form() const;
    /// How many fields have something wrong.
    [[nodiscard]] int wrongFields() const;
    void retell();
    /// Puts the focus into a field.
    void focus(ExportField field);
    /// Marks what is wrong at once.
    void check();
    /// Whether the lock screen is a video, for which the oldest target can't be chosen; what is typed stays.
    void setVideoLock(bool hasVideoLock);
    /// While a box is shown, that the version's field is left says nothing; that it doesn't come back afterwards does.
    void setAsking(bool isAsking);

signals:
    /// Something was typed and is checked.
    void checked();
    /// Enter was pressed in a field.
    void confirmed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Field {
        QWidget* control;
        StateLine* note; ///< Null where there is no place for one.
    };

    void keepWidth();
    void listen();
    void addHelp(const QString& field, const QString& key);
    void chooseTarget(unsigned generation);
    void leaveVersion();
    [[nodiscard]] bool isInVersion() const;
    void sayTarget();
    void sayCount();
    [[nodiscard]] Field& fieldOf(ExportField field) { return _fields[static_cast<std::size_t>(field)]; }

    QWidget& _page;
    QLineEdit& _englishName;
    QLineEdit& _chineseName;
    QLineEdit& _developer;
    QLineEdit& _designer;
    QLineEdit& _version;
    QPlainTextEdit& _summary;
    QLabel& _prefix;
    QLabel& _hint;
    QLabel& _count;
    QButtonGroup* _targets;
    std::array<Field, exportFieldCount> _fields;
    QTimer _checkSoon;
    bool _isAsking = false;
    bool _wasInVersion = false; ///< Before the box.
};

} // namespace zdt
