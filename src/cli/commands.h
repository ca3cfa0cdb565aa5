#pragma once

#include "cli/output.h"
#include "store/storeLock.h"

#include <memory>
#include <string>
#include <vector>

/// The commands of `zdt`. Each prints its result and gives the exit status, or throws a `Refusal`.
namespace zdt {

struct NewTheme {
    std::string name;
    unsigned versionIndex = 0;
    bool small = false;
    bool english = false;
};

/// One of the shared settings of simple mode, and what it is to hold.
struct SharedSetting {
    KeyPath group; ///< The module's and the group's name.
    std::string item;
    std::string value;
};

int listCommand(const Context& context);
int newCommand(const Context& context, const NewTheme& request);
int infoCommand(const Context& context, const std::string& name);
int deleteCommand(const Context& context, const std::string& name);
int generationCommand(const Context& context, const std::string& name, unsigned versionIndex);
int dynamicCommand(const Context& context, const std::string& name, DynamicIcon icon, bool has);

int treeCommand(const Context& context, const std::string& name);
int getCommand(const Context& context, const std::string& name, const std::string& key);
/// @param pairs keys and values in turn
int setCommand(const Context& context, const std::string& name, const std::vector<std::string>& pairs);
int resetCommand(const Context& context, const std::string& name, const std::string& key);

int simpleCommand(const Context& context, const std::string& name);
int setSimpleCommand(const Context& context, const std::string& name, const SharedSetting& setting);

int lockCommand(const Context& context, const std::string& name);
int setLockCommand(const Context& context, const std::string& name, const std::string& type);
int evalCommand(const Context& context, const std::string& text);
/// @param height of the screen, 1920 or 2160
int foldCommand(const Context& context, const std::string& text, std::uint32_t height);
int expandCommand(const Context& context, const std::string& src);
/// A video or picture by its content.
int inspectCommand(const Context& context, const std::string& file);

int checkCommand(const Context& context, const std::string& name);
int exportCommand(const Context& context, const std::string& name, const std::string& file);
int importCommand(const Context& context, const std::string& file, bool replace);

[[nodiscard]] bool isListed(const Context& context, const std::string& name);

/// Refuses a name in whose place something stands that is no theme: a file, or a link to somewhere else.
void requireNoStranger(const Context& context, const std::string& name);

/// Refuses a name that isn't among the themes.
void requireListed(const Context& context, const std::string& name);

/// Keeps other runs of the program from changing the store's themes.
class ChangeLock {
public:
    explicit ChangeLock(const Context& context);

private:
    StoreLock _lock;
};

/// Opens a theme that stands under the store root, with the language that its settings tell.
[[nodiscard]] std::unique_ptr<ThemeResource> openListed(const Context& context, const std::string& name);

/// Refuses what an XML file doesn't give back as it was written.
void requireKeepable(const std::string& key, const std::string& value);

/// The refusal of what another kind of theme has.
[[nodiscard]] Refusal takesNoPart(const std::string& key);

/// A mask as it is printed: "0x" and eight digits.
[[nodiscard]] std::string maskText(TypeMask mask);

} // namespace zdt
