#pragma once

#include "assets/skin/bandPictures.h"
#include "assets/skin/controlPictures.h"

#include <QImage>
#include <QSize>

#include <array>
#include <string_view>

/// The small pictures of the window, which the skin's layouts name.
namespace zdt::assets {

struct SkinPicture {
    std::string_view file; ///< In the skin's folder.
    QSize size;            ///< Logical pixels.
    void (*paint)(QPainter& painter, const QRectF& area);
    int scale = 1; ///< Pixels for a logical one.
};

/// A control's picture has another one for screens of twice the density, of the same name with "@2x".
inline constexpr std::array<SkinPicture, 24> skinPictures{{
    {"optrectjinqu.png", unlockBandSize, paintUnlockBand},
    {"SafeRect.png", bottomBandSize, paintBottomBand},
    {"pnd_msg.png", rowSignSize, paintMessagesRow},
    {"pnd_msg@2x.png", rowSignSize, paintMessagesRow, 2},
    {"pnd_music.png", rowSignSize, paintMusicRow},
    {"pnd_music@2x.png", rowSignSize, paintMusicRow, 2},
    {"pnd_unlock.png", rowSignSize, paintUnlockRow},
    {"pnd_unlock@2x.png", rowSignSize, paintUnlockRow, 2},
    {"png/add-new.png", addCellSize, paintAddCell},
    {"png/add-new@2x.png", addCellSize, paintAddCell, 2},
    {"png/reducesmall.png", removeSize, paintRemove},
    {"png/reducesmall@2x.png", removeSize, paintRemove, 2},
    {"png/ryx-n.png", checkSize, paintUnchecked},
    {"png/ryx-n@2x.png", checkSize, paintUnchecked, 2},
    {"png/ryx-x.png", checkSize, paintChecked},
    {"png/ryx-x@2x.png", checkSize, paintChecked, 2},
    {"png/ryx.png", checkSize, paintUncheckedHover},
    {"png/ryx@2x.png", checkSize, paintUncheckedHover, 2},
    {"png/sysp-off.png", switchSize, paintSwitchOff},
    {"png/sysp-off@2x.png", switchSize, paintSwitchOff, 2},
    {"png/sysp-on.png", switchSize, paintSwitchOn},
    {"png/sysp-on@2x.png", switchSize, paintSwitchOn, 2},
    {"png/tj.png", addSize, paintAdd},
    {"png/tj@2x.png", addSize, paintAdd, 2},
}};

/// Needs a QGuiApplication; may be called on any thread.
[[nodiscard]] QImage drawSkinPicture(const SkinPicture& picture);

} // namespace zdt::assets
