#include "cli/application.h"

#include "cli/commands.h"

#include <CLI/CLI.hpp>

#include <functional>
#include <map>
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
    unsigned generation = 0;
    DynamicIcon icon = DynamicIcon::calendar;
    bool on = false;
    bool small = false;
    bool english = false;
    bool replace = false;
};

using Command = std::function<int(const Context&, const Arguments&)>;

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
        addPackageCommands();
    }

    [[nodiscard]] CLI::App& app() { return _app; }
    [[nodiscard]] int run() const { return _chosen(_context, _arguments); }

private:
    CLI::App* add(const std::string& name, const std::string& description, Command command) {
        CLI::App* subcommand = _app.add_subcommand(name, description);
        subcommand->fallthrough();
        subcommand->callback([this, command] { _chosen = command; });
        return subcommand;
    }

    CLI::App* addNamed(const std::string& name, const std::string& description, Command command) {
        CLI::App* subcommand = add(name, description, std::move(command));
        subcommand->add_option("NAME", _arguments.name, "The theme")->required();
        return subcommand;
    }

    CLI::Option* addGeneration(CLI::App* subcommand, const std::string& option) {
        static const std::map<std::string, unsigned> generations{{"5", 0}, {"8", 1}, {"9", 2}};
        return subcommand->add_option(option, _arguments.generation, "5, 8 or 9")
            ->required()
            ->transform(CLI::IsMember(generations));
    }

    void addThemeCommands();
    void addValueCommands();
    void addPackageCommands();

    CLI::App _app;
    Context& _context;
    Arguments _arguments;
    Command _chosen;
};

void Grammar::addThemeCommands() {
    add("list", "Lists the themes", [](const Context& context, const Arguments&) { return listCommand(context); });

    CLI::App* create =
        addNamed("new", "Makes a theme from a template", [](const Context& context, const Arguments& arguments) {
            return newCommand(context, {arguments.name, arguments.generation, arguments.small, arguments.english});
        });
    addGeneration(create, "--generation");
    create->add_flag("--small", _arguments.small, "Without the modules of single applications");
    create->add_flag("--english", _arguments.english, "For an interface in another language than Chinese");

    addNamed("info", "Tells what a theme is",
             [](const Context& context, const Arguments& arguments) { return infoCommand(context, arguments.name); });
    addNamed("delete", "Removes a theme and its settings",
             [](const Context& context, const Arguments& arguments) { return deleteCommand(context, arguments.name); });
    CLI::App* generation = addNamed("generation", "Moves a theme to another generation and lists what is missing then",
                                    [](const Context& context, const Arguments& arguments) {
                                        return generationCommand(context, arguments.name, arguments.generation);
                                    });
    addGeneration(generation, "GENERATION");

    CLI::App* dynamic = addNamed("dynamic", "Says whether a theme has the icons that move on the phone",
                                 [](const Context& context, const Arguments& arguments) {
                                     return dynamicCommand(context, arguments.name, arguments.icon, arguments.on);
                                 });
    static const std::map<std::string, DynamicIcon> icons{
        {"calendar", DynamicIcon::calendar}, {"clock", DynamicIcon::clock}, {"weather", DynamicIcon::weather}};
    static const std::map<std::string, bool> switches{{"on", true}, {"off", false}};
    dynamic->add_option("ICON", _arguments.icon, "calendar, clock or weather")
        ->required()
        ->transform(CLI::CheckedTransformer(icons));
    dynamic->add_option("SWITCH", _arguments.on, "on or off")->required()->transform(CLI::CheckedTransformer(switches));
}

void Grammar::addValueCommands() {
    addNamed("tree", "Lists every node of a theme",
             [](const Context& context, const Arguments& arguments) { return treeCommand(context, arguments.name); });
    CLI::App* get = addNamed("get", "Prints a value", [](const Context& context, const Arguments& arguments) {
        return getCommand(context, arguments.name, arguments.key);
    });
    get->add_option("KEY", _arguments.key, "Node names joined by \"/\"")->required();

    CLI::App* set = addNamed("set", "Sets values", [](const Context& context, const Arguments& arguments) {
        return setCommand(context, arguments.name, arguments.pairs);
    });
    constexpr int fewest = 2;
    constexpr int most = 1 << 20;
    set->add_option("KEY VALUE", _arguments.pairs, "Keys and values in turn")
        ->required()
        ->expected(fewest, most)
        ->allow_extra_args(false); // or CLI11 takes a value such as "[a,b]" apart
    set->final_callback([this] {
        if (_arguments.pairs.size() % 2 != 0)
            throw CLI::ValidationError("the key " + _arguments.pairs.back(), "has no value");
    });

    CLI::App* reset =
        addNamed("reset", "Puts a file back to the template's", [](const Context& context, const Arguments& arguments) {
            return resetCommand(context, arguments.name, arguments.key);
        });
    reset->add_option("KEY", _arguments.key, "Node names joined by \"/\"")->required();
}

void Grammar::addPackageCommands() {
    addNamed("check", "Lists what stands in the way of an export",
             [](const Context& context, const Arguments& arguments) { return checkCommand(context, arguments.name); });
    CLI::App* exporting =
        addNamed("export", "Writes a theme as a package", [](const Context& context, const Arguments& arguments) {
            return exportCommand(context, arguments.name, arguments.file);
        });
    exporting->add_option("FILE", _arguments.file, "The package")->required();
    CLI::App* importing = add("import", "Makes a package a theme, named by the file",
                              [](const Context& context, const Arguments& arguments) {
                                  return importCommand(context, arguments.file, arguments.replace);
                              });
    importing->add_option("FILE", _arguments.file, "The package")->required();
    importing->add_flag("--replace", _arguments.replace, "Takes the place of a theme of that name");
}

/// Messages of one line, whatever the arguments hold.
std::string oneLine(std::string text) {
    for (char& c : text) {
        if (c == '\n' || c == '\r')
            c = ' ';
    }
    return text;
}

} // namespace

int runZdt(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    Context context{"./", false, out, err};
    Grammar grammar(context);
    try {
        grammar.app().parse(argc, argv);
    } catch (const CLI::Success& success) { // --help and --version
        return grammar.app().exit(success, out, err);
    } catch (const CLI::ParseError& error) {
        err << "zdt: usage: " << oneLine(error.what()) << '\n';
        return usageStatus;
    }
    try {
        return grammar.run();
    } catch (const Refusal& refusal) {
        err << "zdt: " << oneLine(refusal.what()) << '\n';
        return refusedStatus;
    }
}

} // namespace zdt
