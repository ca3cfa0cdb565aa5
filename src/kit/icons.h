#pragma once

#include <QColor>
#include <QIcon>

#include <optional>

class QPainter;
class QRectF;

namespace zdt {

/// The pictures of the window's controls: code points of the font "Material Icons", named as that font names them.
enum class Icon : char16_t {
    Add = 0xe145,
    AddPhotoAlternate = 0xe43e,
    AlignHorizontalCenter = 0xe00f,
    AlignHorizontalLeft = 0xe00d,
    AlignHorizontalRight = 0xe010,
    AlignVerticalBottom = 0xe015,
    AlignVerticalCenter = 0xe011,
    AlignVerticalTop = 0xe00c,
    Animation = 0xe71c,
    Apps = 0xe5c3,
    ArrowBack = 0xe5c4,
    ArrowDownward = 0xe5db,
    ArrowDropDown = 0xe5c5,
    ArrowUpward = 0xe5d8,
    AutoAwesome = 0xe65f,
    Battery5Bar = 0xebd4,
    BrokenImage = 0xe3ad,
    Category = 0xe574,
    ChatBubbleOutline = 0xe0cb,
    Check = 0xe5ca,
    CheckCircle = 0xe86c,
    ChevronLeft = 0xe5cb,
    ChevronRight = 0xe5cc,
    Close = 0xe5cd,
    CloudOff = 0xe2c1,
    Colorize = 0xe3b8,
    Compare = 0xe3b9,
    ContentCopy = 0xe14d,
    DeleteOutline = 0xe92e,
    DonutLarge = 0xe917,
    DriveFileRenameOutline = 0xe9a2,
    DriveFolderUpload = 0xe9a3,
    Error = 0xe000,
    ErrorOutline = 0xe001,
    ExpandLess = 0xe5ce,
    ExpandMore = 0xe5cf,
    FileDownload = 0xe2c4,
    FileUpload = 0xe2c6,
    FilterNone = 0xe3e0,
    FitScreen = 0xea10,
    Folder = 0xe2c7,
    FolderOpen = 0xe2c8,
    FolderZip = 0xeb2c,
    GridView = 0xe9b0,
    HelpOutline = 0xe8fd,
    Image = 0xe3f4,
    Inbox = 0xe156,
    Info = 0xe88e,
    InfoOutline = 0xe88f,
    KeyboardArrowRight = 0xe315,
    Language = 0xe894,
    LinkOff = 0xe16f,
    ListAlt = 0xe0ee,
    LockOpen = 0xe898,
    LockOutline = 0xe899,
    Message = 0xe0c9,
    MoreHoriz = 0xe5d3,
    Movie = 0xe02c,
    MusicNote = 0xe405,
    NearMe = 0xe569,
    Opacity = 0xe91c,
    OpenInNew = 0xe89e,
    Output = 0xebbe,
    Palette = 0xe40a,
    Pause = 0xe034,
    PersonOutline = 0xe7ff,
    PhonelinkSetup = 0xe0de,
    PhotoCamera = 0xe412,
    PlayArrow = 0xe037,
    Redo = 0xe15a,
    Refresh = 0xe5d5,
    Remove = 0xe15b,
    Repeat = 0xe040,
    RestartAlt = 0xf053,
    RotateRight = 0xe41a,
    Schedule = 0xe8b5,
    Search = 0xe8b6,
    SelectAll = 0xe162,
    Settings = 0xe8b8,
    SettingsBackupRestore = 0xe8ba,
    SkipPrevious = 0xe045,
    Smartphone = 0xe32c,
    StarOutline = 0xf06f,
    TextFields = 0xe262,
    Title = 0xe264,
    Tune = 0xe429,
    Undo = 0xe166,
    Videocam = 0xe04b,
    Visibility = 0xe8f4,
    VisibilityOff = 0xe8f5,
    Wallpaper = 0xe1bc,
    Warning = 0xe002,
    ZoomIn = 0xe8ff,
    ZoomOut = 0xe900,
};

/// The icon of a name in the font's own spelling, as `add_photo_alternate`; nothing for a name that isn't listed above.
[[nodiscard]] std::optional<Icon> iconNamed(QStringView name);

/// An icon that is drawn from the font at whatever size and device pixel ratio it is asked for. It stands at the left
/// of a wider place, so that a button can leave a gap before its text. Disabled it has the colour of texts that are
/// off.
[[nodiscard]] QIcon icon(Icon which, const QColor& colour);

/// The same, drawn off at `colour` and on (checked) at `chosen`.
[[nodiscard]] QIcon icon(Icon which, const QColor& colour, const QColor& chosen);

/// Draws the icon into the middle of `place`, as high and wide as the shorter side (logical pixels).
void paintIcon(QPainter& painter, const QRectF& place, Icon which, const QColor& colour);

/// `size` logical pixels square, sharp at `ratio` device pixels to one of them.
[[nodiscard]] QPixmap iconPixmap(Icon which, const QColor& colour, int size, double ratio);

} // namespace zdt
