#pragma once

#include "kit/baseDialog.h"
#include "kit/colourField.h"
#include "kit/textLookup.h"

#include <QColor>
#include <QList>

#include <functional>
#include <optional>

class QLabel;

namespace zdt {

class ZHexField;
class ZPercentField;

/// Chooses a colour: by a square of saturation and value, sliders of hue and alpha, digits, or a colour that the theme
/// has or that was chosen lately. A page can follow while the author tries; Enter and the button take the colour,
/// Escape and the other button bring the old one back. Digits that are no colour are refused.
///
/// Children: `colourSquare`, `colourHue`, `colourAlpha`, `colourHex`, `colourPercent`, `colourError`, `colourReset`,
/// `colourAccept`, `colourCancel`, and the swatches `themeColour0`…, `recentColour0`….
class ZColourDialog : public ZBaseDialog {
    Q_OBJECT

public:
    struct Request {
        QColor colour;
        std::optional<QColor> fallback; ///< Where the reset button leads; without one there is no such button.
        QList<QColor> themeColours;     ///< Doubles are left out, and what doesn't fit in two rows.
    };

    static constexpr int recentCount = 8;

    ZColourDialog(const Request& request, const TextLookup& lookup, QWidget* parent = nullptr);

    [[nodiscard]] QColor colour() const { return _colour; }

    void accept() override;
    void reject() override;

    /// Shows the dialog and waits. Nothing if it was cancelled; `follow` has heard of the old colour again then, if it
    /// heard of another.
    [[nodiscard]] static std::optional<QColor> choose(const Request& request, const TextLookup& lookup, QWidget* parent,
                                                      const std::function<void(const QColor&)>& follow = {});

    /// The colours that were chosen lately in this process, the newest first.
    [[nodiscard]] static QList<QColor> recentColours();

signals:
    /// Another colour is tried.
    void colourChanged(const QColor& colour);

private:
    void addStrips(const Request& request, const TextLookup& lookup);
    void addFields(const Request& request, const TextLookup& lookup);
    void addSwatches(const QString& title, const QList<QColor>& colours, const QString& name);
    void addButtons(const TextLookup& lookup);
    /// Shows a colour, but for the field in which the author types it, and tells of it.
    void take(const QColor& colour, const QWidget* typedIn = nullptr);
    void takeMoved();
    void showColour(const QWidget* typedIn);
    void typeDigits(const QString& text);
    void typePercent();
    [[nodiscard]] bool isWhole() const;
    void showError(bool isWrong);

    QColor _before;
    QColor _colour; ///< Exact, while the way over hue and saturation may round.
    HsvColour _now;
    ColourSquare* _square;
    ColourSlider* _hue = nullptr;
    ColourSlider* _alpha = nullptr;
    ColourComparison* _comparison = nullptr;
    ZHexField* _hex = nullptr;
    ZPercentField* _percent = nullptr;
    QLabel* _error = nullptr;
};

} // namespace zdt
