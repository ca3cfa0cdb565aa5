#include "kit/fonts.h"

#include <QStringList>

namespace zdt {

QFont textFont(int pixels, QFont::Weight weight) {
    QFont font(QStringList{"Inter", "Noto Sans CJK SC"});
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QFont monoFont(int pixels) {
    QFont font(QStringList{"JetBrains Mono", "Noto Sans Mono CJK SC"});
    font.setPixelSize(pixels);
    font.setStyleHint(QFont::Monospace);
    return font;
}

QFont iconFont(int pixels) {
    QFont font("Material Icons");
    font.setPixelSize(pixels);
    // Hinting would move the strokes of an icon apart, and no other face has these characters.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoFontMerging));
    return font;
}

} // namespace zdt
