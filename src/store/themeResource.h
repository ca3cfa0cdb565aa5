#pragma once

#include "lockscreen/amazingUnlockNode.h"
#include "model/keyPath.h"
#include "model/returnCode.h"
#include "model/typeMask.h"
#include "modules/description.h"
#include "support/keyValueFile.h"
#include "support/parallel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace zdt {

class FileResNode;
class ResNode;
class SimpleModeImplNode;
class ThemeNode;

/// One thing that stands in the way of an export.
struct Problem {
    std::string key;  ///< Of the leaf, or of the block whose file is damaged; empty for the description.
    std::string path; ///< The file in question, relative to the theme directory; empty for a value.
    int code = 0;     ///< A return code.
};

/// Why a package could not be imported.
enum class ImportFailure {
    none,
    missing,     ///< There is no such file.
    badName,     ///< The file's stem can't name a theme.
    notAPackage, ///< No archive, a damaged one, or one without a theme's description.
    unsafe,      ///< It holds names that lead outside, links or encrypted entries.
    tooLarge,    ///< It holds more than any theme does.
    incomplete,  ///< Not all that it holds could be written.
};

/// The icons that move on the phone and that a theme has or leaves out.
enum class DynamicIcon { calendar, clock, weather };
inline constexpr std::size_t dynamicIconCount = 3;

/// The store of one open theme: through it alone the rest of the system reaches the theme. It owns the resource tree,
/// knows where the theme lies, makes new themes from the templates, and gives the calls to read and change values.
///
/// Changes reach disk at once: a file is copied into the theme when it is set, a text, colour or property when its
/// block is applied. The settings are written when the store is closed, if they differ from what stands on disk.
///
/// Operations that an author's file or value can fail give a code of `returnCode`; a failed one leaves the theme as it
/// was. Assertions guard against programming errors alone. Nothing here is locked.
class ThemeResource {
public:
    // Without an open theme. Each takes the store root, "./" if it is empty, and refuses what can't name a theme.

    /// The names of the themes, sorted.
    [[nodiscard]] static std::vector<std::string> listThemes(const std::string& root);
    /// Makes a theme from the template of a generation and opens it. The directory of a name that is taken stands as it
    /// is, or is removed, with nothing copied in its place, if `overwrite` is set. Null if the name or the index above
    /// 2 isn't allowed, the template is missing or it can't be copied whole.
    /// @param smallTheme 0 for a big theme
    /// @param chinese whether the theme is made under a Chinese interface; if not, the description's Chinese
    ///        placeholders are replaced by English ones
    [[nodiscard]] static std::unique_ptr<ThemeResource> createTheme(const std::string& name, unsigned versionIndex,
                                                                    int smallTheme, bool overwrite, bool chinese,
                                                                    const std::string& root);
    /// Opens a theme. It never fails to load: what can't be read stays at its default. Null for a name that isn't
    /// allowed. The name must not be empty.
    /// @throws std::invalid_argument if the settings' type isn't a number of 32 bits
    [[nodiscard]] static std::unique_ptr<ThemeResource> openTheme(const std::string& themeName, bool chinese,
                                                                  const std::string& root);
    /// Whether the settings of a theme say that it was made under a Chinese interface; true if they say nothing.
    /// @throws std::invalid_argument as `openTheme`
    [[nodiscard]] static bool hasChineseSettings(const std::string& name, const std::string& root);
    /// What a theme is, by its settings or else by what it holds, as its opening would find.
    /// @throws std::invalid_argument as `openTheme`
    [[nodiscard]] static TypeMask readTypeMask(const std::string& name, const std::string& root);
    /// Unpacks a package, verifies it and puts it in the place of a theme named by the file's stem, which `outName`
    /// receives. A failure leaves what stood there.
    [[nodiscard]] static bool importTheme(const std::string& packagePath, std::string& outName, const std::string& root,
                                          ImportFailure* failure = nullptr, const Progress& progress = {});
    /// Removes a theme and every settings file whose name begins with the theme's and "_". A theme that
    /// can't be moved out of its place stays whole.
    [[nodiscard]] static bool deleteTheme(const std::string& name, const std::string& root);
    /// The nine texts of a theme's description, empty where the file gives none.
    [[nodiscard]] static Description readDescription(const std::string& name, const std::string& root);
    /// The paths of the preview pictures, in directory order.
    [[nodiscard]] static std::vector<std::string> previewFiles(const std::string& name, const std::string& root);
    /// Bytes of all the theme's files.
    [[nodiscard]] static std::uint64_t themeSize(const std::string& name, const std::string& root);

    /// Frees the shared settings, writes the theme's own, if they changed, and frees the tree.
    ~ThemeResource();
    ThemeResource(const ThemeResource&) = delete;
    ThemeResource& operator=(const ThemeResource&) = delete;

    // What the theme is.

    [[nodiscard]] ThemeNode& tree() const { return *_resTree; }
    [[nodiscard]] const AmazingUnlockNode& amazingNode() const { return *_amazingNode; }
    [[nodiscard]] const std::string& name() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }
    /// The generation's index: 0, 1 or 2, and 3 for a theme of none.
    [[nodiscard]] unsigned version() const;
    [[nodiscard]] bool isBigTheme() const;
    [[nodiscard]] bool isChinese() const;
    void setBigTheme(bool big);
    void setLanguageBit(bool chinese);
    [[nodiscard]] bool hasDynamicIcon(DynamicIcon icon) const;
    void setDynamicIcon(DynamicIcon icon, bool has);
    /// Writes the settings to disk now, if they differ from what stands there.
    [[nodiscard]] bool saveSettings();

    /// Moves the theme to another generation: sizes and masks follow, files that no longer fit lose their value, and a
    /// small theme gets defaults for them.
    void setVersion(unsigned versionIndex);
    /// `setVersion`, the description's version text made to agree, and both the description and the settings written.
    /// False if they can't be: the theme is of its old generation then.
    [[nodiscard]] bool changeGeneration(unsigned versionIndex);
    /// Sets the masks that depend on both generation and language.
    void refreshMasks();

    // Finding nodes.

    /// The leaf of a block; of namesakes the first that takes part in the theme, else the first. Null if there is none.
    [[nodiscard]] ResNode* findLeaf(const KeyPath& keyPath, const std::string& name) const;
    /// The n-th of a path's namesakes, counted from 1; null if there are fewer.
    [[nodiscard]] ResNode* findNthNode(const KeyPath& keyPath, int n) const;

    // Reading and changing values. A key path names a block, and `name` a leaf in it; of namesakes the first that takes
    // part in the theme is meant, else the first.

    /// The value of a leaf that takes part in the theme; empty otherwise.
    [[nodiscard]] std::string getValue(const KeyPath& keyPath, const std::string& name) const;
    /// The value of the n-th of the path's namesakes, counted from 1, whether it takes part or not.
    [[nodiscard]] std::string getValueNth(const KeyPath& keyPath, int n) const;
    /// The leaf's own code, or -14.
    [[nodiscard]] int setValue(const KeyPath& keyPath, const std::string& name, const std::string& value);
    [[nodiscard]] int setValueNth(const KeyPath& keyPath, int n, const std::string& value);
    /// Sets several leaves of a block and gives each one's code; unknown names are skipped. Without the block the
    /// result is the one pair ("parent key", -14).
    std::map<std::string, int> setValues(const KeyPath& keyPath, const std::map<std::string, std::string>& values);
    /// Writes the block of a path; the description for an empty path. False if it isn't found or can't be written.
    [[nodiscard]] bool applyNode(const KeyPath& keyPath);
    /// Name and value of each child that takes part, of a node that takes part.
    [[nodiscard]] std::map<std::string, std::string> childValues(const KeyPath& keyPath) const;
    void childValues(const KeyPath& keyPath, const std::string& name, std::map<std::string, std::string>& out) const;
    /// The same in the tree's order.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> childPairs(const KeyPath& keyPath) const;
    /// Removes the file that is a file leaf's value and empties the value. -1 if it can't be removed, -14 without the
    /// leaf.
    [[nodiscard]] int clearFile(const KeyPath& keyPath);
    /// The same for the n-th of the path's namesakes.
    [[nodiscard]] int clearFileNth(const KeyPath& keyPath, int n);
    /// Puts a file back to the template's; -1 if the template has none.
    [[nodiscard]] int restoreDefault(ResNode* node);
    /// `root/config/name_fileName`; empty for an empty argument.
    [[nodiscard]] std::string configFilePath(const std::string& fileName) const;
    /// `root/res/name/`, or `root/tmp/name/`; empty for an empty name.
    [[nodiscard]] std::string themeDirectory(const std::string& name, bool useTmp) const;
    /// The node's key path joined by "/".
    [[nodiscard]] static std::string dirPathOf(const ResNode& node);

    // The shared settings of simple mode. A key path names a group by its module and its own name, and `name` an item
    // of it; all are words that an interface shows.

    /// The names of the children of a path, in the tree's order: the modules for an empty one.
    [[nodiscard]] std::vector<std::string> simpleNames(const KeyPath& keyPath) const;
    /// What most of an item's sources hold, colours without their alpha; empty if none takes part in the theme.
    [[nodiscard]] std::string simpleValue(const KeyPath& keyPath, const std::string& name) const;
    /// The leaves that an item sets, those of other generations too.
    [[nodiscard]] std::vector<ResNode*> simpleSources(const KeyPath& keyPath, const std::string& name) const;
    /// Whether a source of the item takes part in the theme. An item without one isn't shown.
    [[nodiscard]] bool simpleTakesPart(const KeyPath& keyPath, const std::string& name) const;
    /// Sets all sources, or none if one refuses the value, whose code is the result; -14 without the item or sources.
    [[nodiscard]] int setSimpleValue(const KeyPath& keyPath, const std::string& name, const std::string& value);
    /// Writes the blocks of an item's sources. False if there is no such item or one of them can't be written.
    [[nodiscard]] bool applySimple(const KeyPath& keyPath, const std::string& name);
    /// Both in one: sets the sources and writes their blocks. -3 if one can't be written; then the sources, and the
    /// blocks that were written, have their old values again.
    [[nodiscard]] int changeSimpleValue(const KeyPath& keyPath, const std::string& name, const std::string& value);
    /// The same with a value for each source, as many as there are and in their order: the way back to what they were.
    [[nodiscard]] int changeSimpleSources(const KeyPath& keyPath, const std::string& name,
                                          const std::vector<std::string>& values);

    // What the author adds. A node that was made for a file which is then refused is removed again.

    /// Adds a preview picture behind the highest number of its prefix, "preview_" + module + "_", and gives its path.
    [[nodiscard]] int addPreview(const std::string& file, const std::string& prefix, std::string& outPath);
    /// Sets the preview picture of a number. A standing node, too, is removed if the file is refused.
    [[nodiscard]] int setPreview(const std::string& file, const std::string& prefix, unsigned index,
                                 std::string& outPath);
    [[nodiscard]] int replacePreview(const std::string& newFile, const std::string& oldFile);
    /// Removes a preview picture; -8 for the cover and the two small icons.
    [[nodiscard]] int deletePreview(const std::string& file);
    /// Takes the previews numbered 1 to 9 out of the tree; the files stay.
    void removeNumberedPreviews();
    [[nodiscard]] int addThirdPartyIcon(const std::string& file);
    /// A code for each file's base name; the one pair ("image", -6) without the parent.
    std::map<std::string, int> addThirdPartyIcons(const std::vector<std::string>& files);
    [[nodiscard]] int removeThirdPartyIcon(const std::string& name);
    /// Removes all of them and gives the last code that wasn't 0.
    [[nodiscard]] int clearThirdPartyIcons();
    /// Sets the background of third-party icons with an index of 0 to 99.
    [[nodiscard]] int setIconBackground(unsigned index, const std::string& file);
    [[nodiscard]] int removeIconBackground(unsigned index);
    /// Stores the package of a custom lock screen, or its `ext.properties`, and makes the lock screen a custom one.
    [[nodiscard]] int setCustomUnlockFile(const std::string& file);
    /// Copies the values of the contacts' shared widgets to those of "launcher", "mms" or "systemui", or for "contacts"
    /// to those of the phone applications. Texts and colours reach disk when the blocks are applied.
    [[nodiscard]] int syncCommonSetting(const std::string& module);
    /// -9 below 1920.
    [[nodiscard]] int setScreenHeight(std::uint32_t height);

    // The lock screen. Its kind and its video are written at once. The designed one is read from `amazingNode`; of what
    // the operations below change, pictures are copied into the theme at once, and the layout is written when the block
    // "unlock"/"amazing" is applied. They give 0 or a code of `designCode` or `returnCode`, -1 where the theme has no
    // design that can be read. A picture that a new part needs is taken from the template where the theme has none; the
    // check before an export lists those still missing.

    /// The kind of lock screen; empty if the theme doesn't say it.
    [[nodiscard]] std::string lockScreenType() const;
    /// Changes the kind of lock screen, and starts a design for "amazing" where the theme has none. -18 for an empty
    /// kind, -9 for one that XML can't hold, -3 if it can't be written.
    [[nodiscard]] int setLockScreenType(const std::string& type);
    /// Stores the video of the lock screen, and for a theme without one that of the wallpaper.
    [[nodiscard]] int setLockVideo(const std::string& file);
    /// Starts a new design with the texts and clock of the phone's own, in place of what was there.
    void startLockDesign();

    [[nodiscard]] int setLockElementRect(const ElementPath& path, const DesignRect& rect);
    [[nodiscard]] int setLockElementAttributes(const ElementPath& path,
                                               const std::map<std::string, std::string>& attributes);
    [[nodiscard]] int setLockElementChildren(const ElementPath& path, const std::vector<AmazingChild>& children);
    /// Copies a picture into the design, for an element that is made next, such as a frame of an animation. One that no
    /// element names goes when the layout is written.
    /// @param name receives its name there
    [[nodiscard]] int importLockPicture(const std::string& file, std::string& name);
    [[nodiscard]] int moveLockElement(std::size_t from, std::size_t to);
    [[nodiscard]] int removeLockElement(std::size_t index);

    [[nodiscard]] int addDecoration(const std::string& file, const DesignRect& rect,
                                    const std::map<std::string, std::string>& attributes, std::size_t& index);
    [[nodiscard]] int setDecorationPicture(std::size_t index, const std::string& file);
    [[nodiscard]] int removeDecoration(std::size_t index);

    // Pictures are added to and removed from a wallpaper that changes by an interval; -9 for any other until its
    // interval is set.

    /// -9 once the interval can show no more. The first makes the wallpaper, which changes every minute.
    [[nodiscard]] int addLockWallpaper(const WallpaperPictures& pictures);
    /// Replaces those of a pair that are given, at once.
    [[nodiscard]] int replaceLockWallpaper(std::size_t row, const WallpaperPictures& pictures);
    /// -9 for the last.
    [[nodiscard]] int removeLockWallpaper(std::size_t row);
    [[nodiscard]] int setLockWallpaperInterval(WallpaperInterval interval);
    /// Whether the lock screen shows a wallpaper of its own; kept in the settings.
    void setHasLockWallpaper(bool has);

    [[nodiscard]] int addLockClock();
    [[nodiscard]] int removeLockClock();
    [[nodiscard]] int removeLockClockPicture();
    /// The picture of a digit's value, or the one between the digits.
    [[nodiscard]] int setClockDigitPicture(ClockDigit digit, std::size_t value, const std::string& file);
    [[nodiscard]] int setClockPicture(const std::string& file);

    /// One that is new shows in the upper left corner at its own size.
    [[nodiscard]] int setChargePicture(std::size_t index, const std::string& file);
    [[nodiscard]] int removeChargePicture(std::size_t index);

    [[nodiscard]] int addMusicControl();
    [[nodiscard]] int removeMusicControl();
    /// @param name of the picture in the design
    [[nodiscard]] int replaceLockPicture(const std::string& name, const std::string& file);

    [[nodiscard]] int addLockText(const std::string& src);
    [[nodiscard]] int removeLockText(const std::string& src);

    [[nodiscard]] int addUnlocker(UnlockerKind kind);
    [[nodiscard]] int removeUnlocker(UnlockerKind kind);
    [[nodiscard]] int setUnlockerStart(UnlockerKind kind, const DesignRect& rect);
    [[nodiscard]] int setUnlockerEnd(UnlockerKind kind, const DesignRect& rect);
    [[nodiscard]] int setUnlockMode(int mode);
    [[nodiscard]] int addSmartIcon();

    // Checking and writing.

    /// Lists the leaves that take part in the theme and aren't fit for an export, in the tree's order. True if all are.
    [[nodiscard]] bool checkFiles(std::vector<Problem>& outList) const;
    /// Writes all that takes part in the theme into a directory. Stops at the first failure.
    [[nodiscard]] bool saveTo(const std::string& directory, const Progress& progress = {});
    /// Writes the theme as a package: description.xml, preview/, unlock/ and wallpaper/ as they are, every other folder
    /// as an archive of its own. A package that stood at the path stays until the new one is whole.
    [[nodiscard]] bool exportTo(const std::string& packagePath, const Progress& progress = {});
    /// The nodes that neither a check nor a save looks at, each with all below it.
    [[nodiscard]] std::set<ResNode*> checkDynamicIcons() const;

private:
    /// Leaves the time of a change on the theme's folder, by which a list tells how old it is. A file deep in it
    /// doesn't.
    void noteChange() const;
    ThemeResource(std::string root, std::string name, TypeMask mask);

    /// The copy is made aside, so that a full disk or a killed process leaves no half theme.
    [[nodiscard]] static bool copyTemplate(const std::string& root, const std::string& name, unsigned versionIndex);
    void applySettings(const KeyValues& settings);
    [[nodiscard]] KeyValues currentSettings() const;

    [[nodiscard]] ResNode* node(const KeyPath& keyPath) const;
    [[nodiscard]] int setLeaf(ResNode* leaf, const std::string& value);
    /// Writes what `change` sets of an item's sources, or puts them back.
    [[nodiscard]] int changeSimple(const KeyPath& keyPath, const std::string& name, const std::function<int()>& change);
    [[nodiscard]] SimpleModeImplNode* simpleItem(const KeyPath& keyPath, const std::string& name) const;

    /// What takes part in a check and a save, in the tree's order: all that is applicable, outside the skipped nodes,
    /// and with a value where the theme may do without.
    [[nodiscard]] std::vector<ResNode*> presentNodes() const;
    void addProblemsOf(ResNode& each, std::vector<Problem>& problems) const;

    void applySizeLimits(unsigned versionIndex);
    void restoreInvalidDefaults();
    /// Whether the text had to be changed.
    bool makeVersionTextAgree();

    /// Copies the pictures that the design lacks from the template, as far as that has them.
    void takePicturesFromTemplate();
    [[nodiscard]] bool writeLockScreen();
    [[nodiscard]] std::vector<std::string> lockFiles() const;
    /// -1 for a theme whose design is missing or can't be read.
    [[nodiscard]] int changeDesign(const std::function<int(LockDesign&)>& change);
    [[nodiscard]] int importDesignPicture(const std::string& file,
                                          const std::function<int(LockDesign&, const std::string&)>& use);

    /// Sets a file on the child of its name, which is made from `fresh` if there is none and then removed again if the
    /// file is refused.
    [[nodiscard]] int setAddedFile(ResNode& parent, std::unique_ptr<FileResNode> fresh, const std::string& file);
    [[nodiscard]] int setNumberedPreview(const std::string& file, const std::string& name, std::string& outPath);
    [[nodiscard]] int removeNodeFile(const ResNode& node) const;
    /// Removes a child and its file; -14 if there is none of that name.
    [[nodiscard]] int removeAddedFile(ResNode& parent, const std::string& name);

    std::unique_ptr<ThemeNode> _resTree;
    std::unique_ptr<ResNode> _simpleModeTree;  ///< Points into `_resTree`.
    AmazingUnlockNode* _amazingNode = nullptr; ///< A node of the tree.
    std::string _rootDirectory;
    std::string _name;
    KeyValues _savedSettings; ///< As they stand on disk.
    std::array<bool, dynamicIconCount> _hasDynamicIcon{};
};

} // namespace zdt
