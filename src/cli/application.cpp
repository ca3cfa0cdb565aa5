#include "cli/application.h"

#include "cli/commands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <optional>
#include <ostream>

namespace zdt {

namespace {

constexpr int refusedStatus = 1;
constexpr int usageStatus = 2;

/// The arguments of all commands; each takes those that it names.
struct Arguments {
    std::string name;
    std::string key;
    std::string file;
    std::vector<std::string> pairs;
    std::vector<std::string> setting;
    std::string generation;
    std::string icon;
    std::string onOff;
    std::optional<std::string> type;
    std::string text;
    std::string height;
    bool small = false;
    bool english = false;
    bool replace = false;
};

using Command = std::function<int(const Context&, const Arguments&)>;

const std::vector<std::string> generationWords{"5", "8", "9"};
const std::vector<std::string> iconWords{"calendar", "clock", "weather"};
const std::vector<std::string> switchWords{"on", "off"};
const std::vector<std::string> heightWords{"1920", "2160"};

/// The place of a word that was checked to be one of the words.
unsigned placeOf(const std::string& word, const std::vector<std::string>& words) {
    return static_cast<unsigned>(std::find(words.begin(), words.end(), word) - words.begin());
}

/// CLI11 takes an argument such as "[a,b]" apart where a list is expected. A sign in front, which no argument can begin
/// with by accident, keeps it whole.
constexpr char shield = '\x01';

std::vector<std::string> shielded(int argc, const char* const* argv) {
    std::vector<std::string> arguments;
    for (int index = argc - 1; index > 0; --index) { // CLI11 wants them from the last to the first.
        const std::string argument = argv[index];
        const bool isBracketed = argument.starts_with('[') && argument.ends_with(']');
        arguments.push_back(isBracketed ? shield + argument : argument);
    }
    return arguments;
}

void unshield(std::string& argument) {
    if (argument.starts_with(std::string{shield, '['}))
        argument.erase(0, 1);
}

/// The commands' grammar, and which of them was chosen.
class Grammar {
public:
    explicit Grammar(Context& context)
        : _context(context) {
        _app.name("zdt");
        _app.description("Makes, changes, checks and packs themes for OVUI phones.");
        _app.set_version_flag("--version", std::string("zdt ") + ZDT_VERSION);
        _app.add_option("--root", _context.root, "The store root, with the themes in its res/")->type_name("DIR");
        _app.add_flag("--json", _context.json, "The result as one JSON document");
        _app.require_subcommand(1);
        _app.fallthrough();
        addThemeCommands();
        addValueCommands();
        addSimpleCommand();
        addPackageCommands();
        addLockCommands();
    }

    [[nodiscard]] CLI::App& app() { return _app; }
    [[nodiscard]] int run() {
        for (std::string* argument : {&_arguments.name, &_arguments.key, &_arguments.file, &_arguments.text})
            unshield(*argument);
        if (_arguments.type)
            unshield(*_arguments.type);
        std::for_each(_arguments.pairs.begin(), _arguments.pairs.end(), unshield);
        std::for_each(_arguments.setting.begin(), _arguments.setting.end(), unshield);
        return _chosen(_context, _arguments);
    }

private:
    CLI::App* add(const std::string& name, const std::string& description, const Command& command) {
        CLI::App* subcommand = _app.add_subcommand(name, description);
        subcommand->fallthrough();
        subcommand->callback([this, command] { _chosen = command; });
        return subcommand;
    }

    CLI::App* addNamed(const std::string& name, const std::string& description, const Command& command) {
        CLI::App* subcommand = add(name, description, command);
        subcommand->add_option("NAME", _arguments.name, "The theme")->type_name("")->required();
        return subcommand;
    }

    /// An argument that is one of a few words.
    static void addChoice(CLI::App* subcommand, const std::string& option, std::string& choice,
                          const std::vector<std::string>& words) {
        subcommand->add_option(option, choice)->required()->check(CLI::IsMember(words));
    }

    void addThemeCommands();
    void addValueCommands();
    void addSimpleCommand();
    void addPackageCommands();
    void addLockCommands();
    CLI::App* addTextCommand(const std::string& name, const std::string& description, const Command& command);

    CLI::App _app;
    Context& _context;
    Arguments _arguments;
    Command _chosen;
};

void Grammar::addThemeCommands() {
    add("list", "Lists the themes", [](const Context& context, const Arguments&) { return listCommand(context); });

    CLI::App* create =
        addNamed("new", "Makes a theme from a template", [](const Context& context, const Arguments& arguments) {
            return newCommand(context, {arguments.name, placeOf(arguments.generation, generationWords), arguments.small,
                                        arguments.english});
        });
    addChoice(create, "--generation", _arguments.generation, generationWords);
    create->add_flag("--small", _arguments.small, "Without the modules of single applications");
    create->add_flag("--english", _arguments.english, "For an interface in another language than Chinese");

    addNamed("info", "Tells what a theme is",
             [](const Context& context, const Arguments& arguments) { return infoCommand(context, arguments.name); });
    addNamed("delete", "Removes a theme and its settings",
             [](const Context& context, const Arguments& arguments) { return deleteCommand(context, arguments.name); });
    CLI::App* generation =
        addNamed("generation", "Moves a theme to another generation and lists what is missing then",
                 [](const Context& context, const Arguments& arguments) {
                     return generationCommand(context, arguments.name, placeOf(arguments.generation, generationWords));
                 });
    addChoice(generation, "GENERATION", _arguments.generation, generationWords);

    CLI::App* dynamic = addNamed("dynamic", "Says whether a theme has the icons that move on the phone",
                                 [](const Context& context, const Arguments& arguments) {
                                     const auto icon = static_cast<DynamicIcon>(placeOf(arguments.icon, iconWords));
                                     return dynamicCommand(context, arguments.name, icon, arguments.onOff == "on");
                                 });
    addChoice(dynamic, "ICON", _arguments.icon, iconWords);
    addChoice(dynamic, "SWITCH", _arguments.onOff, switchWords);
}

void Grammar::addValueCommands() {
    addNamed("tree", "Lists every node of a theme",
             [](const Context& context, const Arguments& arguments) { return treeCommand(context, arguments.name); });
    CLI::App* get = addNamed("get", "Prints a value", [](const Context& context, const Arguments& arguments) {
        return getCommand(context, arguments.name, arguments.key);
    });
    get->add_option("KEY", _arguments.key, "Node names joined by \"/\"")->type_name("")->required();

    CLI::App* set = addNamed("set", "Sets values", [](const Context& context, const Arguments& arguments) {
        return setCommand(context, arguments.name, arguments.pairs);
    });
    constexpr int fewest = 2;
    constexpr int most = 1 << 20;
    set->add_option("KEY VALUE", _arguments.pairs, "Keys and values in turn")
        ->type_name("")
        ->required()
        ->expected(fewest, most);
    set->parse_complete_callback([this] {
        if (_arguments.pairs.size() % 2 != 0)
            throw CLI::ValidationError("the key " + _arguments.pairs.back(), "has no value");
    });

    CLI::App* reset =
        addNamed("reset", "Puts a file back to the template's", [](const Context& context, const Arguments& arguments) {
            return resetCommand(context, arguments.name, arguments.key);
        });
    reset->add_option("KEY", _arguments.key, "Node names joined by \"/\"")->type_name("")->required();
}

void Grammar::addSimpleCommand() {
    CLI::App* simple = addNamed(
        "simple", "Lists the shared settings, or sets one", [](const Context& context, const Arguments& arguments) {
            const std::vector<std::string>& words = arguments.setting;
            return words.empty()
                       ? simpleCommand(context, arguments.name)
                       : setSimpleCommand(context, arguments.name, {{words[0], words[1]}, words[2], words[3]});
        });
    constexpr int words = 4;
    simple->add_option("MODULE GROUP ITEM VALUE", _arguments.setting, "The setting to change")
        ->type_name("")
        ->expected(words);
    simple->footer("Words with blanks stand in quotes, as in\n"
                   "  zdt simple Lagoon mms \"mms list\" \"highlight color\" \"#0a9396\"");
}

void Grammar::addPackageCommands() {
    addNamed("check", "Lists what stands in the way of an export",
             [](const Context& context, const Arguments& arguments) { return checkCommand(context, arguments.name); });
    CLI::App* exporting =
        addNamed("export", "Writes a theme as a package", [](const Context& context, const Arguments& arguments) {
            return exportCommand(context, arguments.name, arguments.file);
        });
    exporting->add_option("FILE", _arguments.file, "The package")->type_name("")->required();
    CLI::App* importing = add("import", "Makes a package a theme, named by the file",
                              [](const Context& context, const Arguments& arguments) {
                                  return importCommand(context, arguments.file, arguments.replace);
                              });
    importing->add_option("FILE", _arguments.file, "The package")->type_name("")->required();
    importing->add_flag("--replace", _arguments.replace, "Takes the place of a theme of that name");
}

CLI::App* Grammar::addTextCommand(const std::string& name, const std::string& description, const Command& command) {
    CLI::App* subcommand = add(name, description, command);
    subcommand->add_option("TEXT", _arguments.text, "Behind \"--\" if it begins with \"-\"")->type_name("")->required();
    return subcommand;
}

void Grammar::addLockCommands() {
    CLI::App* lock = addNamed("lock", "Shows the lock screen, or changes its kind",
                              [](const Context& context, const Arguments& arguments) {
                                  return arguments.type ? setLockCommand(context, arguments.name, *arguments.type)
                                                        : lockCommand(context, arguments.name);
                              });
    lock->add_option("TYPE", _arguments.type, "The new kind")->type_name("");
    lock->footer("The kinds:\n"
                 "  slide, magazine  the phone's own\n"
                 "  amazing          freely designed; a theme without a design gets a new one\n"
                 "  video            a video, unlock/video/image_set/unlock.mp4\n"
                 "  custom           supplied whole, as a package\n"
                 "  zooking          of an engine outside the phone");

    addTextCommand("eval", "The value of an expression", [](const Context& context, const Arguments& arguments) {
        return evalCommand(context, arguments.text);
    });
    CLI::App* fold = addTextCommand("fold", "The canonical form of a position in a lock screen layout",
                                    [](const Context& context, const Arguments& arguments) {
                                        const auto height = placeOf(arguments.height, heightWords) == 0
                                                                ? std::uint32_t{1920}
                                                                : std::uint32_t{2160};
                                        return foldCommand(context, arguments.text, height);
                                    });
    addChoice(fold, "--height", _arguments.height, heightWords);
    fold->footer("Such as\n  zdt fold \"system.screen_height - 100 - 20\" --height 2160");
    CLI::App* expand = addTextCommand(
        "expand", "The picture names that a src of a lock screen layout stands for",
        [](const Context& context, const Arguments& arguments) { return expandCommand(context, arguments.text); });
    expand->footer("Such as\n  zdt expand \"'number_'+system.time.hour1+'.png'\"");
    CLI::App* inspect =
        add("inspect", "What an MP4, PNG or JPEG holds, by its content",
            [](const Context& context, const Arguments& arguments) { return inspectCommand(context, arguments.file); });
    inspect->add_option("FILE", _arguments.file, "The video or picture")->type_name("")->required();
}

/// A message as the author knows the arguments.
std::string shown(std::string message) {
    std::erase(message, shield);
    return oneLine(message);
}

} // namespace

int runZdt(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    Context context{"./", false, out, err};
    Grammar grammar(context);
    try {
        grammar.app().parse(shielded(argc, argv));
    } catch (const CLI::Success& success) { // --help and --version
        static_cast<void>(grammar.app().exit(success, out, err));
        return out.flush() ? 0 : refusedStatus;
    } catch (const CLI::ParseError& error) {
        const std::vector<std::string> unknown = grammar.app().remaining();
        const bool noCommand = grammar.app().get_subcommands().empty() && !unknown.empty();
        err << "zdt: usage: " << shown(noCommand ? "there is no command " + unknown.front() : error.what()) << '\n';
        return usageStatus;
    }
    try {
        const int status = grammar.run();
        if (!out.flush())
            throw Refusal("standard output", "it couldn't be written");
        return status;
    } catch (const Refusal& refusal) {
        err << (context.midLine ? "\n" : "") << "zdt: " << shown(refusal.what()) << '\n';
        return refusedStatus;
    }
}

} // namespace zdt
