#include "shell/themeImport.h"

#include "kit/localisation.h"
#include "kit/messageBoxes.h"
#include "kit/progressDialog.h"
#include "packaging/zipFolder.h"
#include "shell/importPlan.h"
#include "store/themeResource.h"
#include "support/files.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace zdt {

namespace {

/// What is replaced can't be brought back.
constexpr bool refusesByDefault = true;

struct Job {
    std::string source;
    ImportPlan plan;
};

std::string withoutSlash(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

/// A folder becomes the theme of its whole name, dots included.
ImportPlan planOf(const std::string& source, const std::vector<std::string>& themes) {
    return planImport(isFolder(source) ? source + ".zdt" : source, themes);
}

/// Importing a folder is importing a package of it, with all the looking that packages get.
bool importFolder(const std::string& folder, const std::string& name, const std::string& root) {
    const std::string aside = root + "tmp/imported/";
    const std::string package = aside + name + ".zdt";
    std::string imported;
    const bool done = CreateFolderPath(aside) && ZipFolder(folder + "/", package, false) &&
                      ThemeResource::importTheme(package, imported, root);
    static_cast<void>(RemoveFolder(aside));
    return done;
}

bool importOne(const Job& job, const std::string& root, const Progress& progress) {
    std::string name;
    return isFolder(job.source) ? importFolder(job.source, job.plan.name, root)
                                : ThemeResource::importTheme(job.source, name, root, nullptr, progress);
}

/// Takes those that may not replace what is there out of the jobs. False if that leaves none.
bool settle(std::vector<Job>& jobs, QWidget* window) {
    const auto asks = [](const Job& job) { return job.plan.step == ImportPlan::Step::ask; };
    const auto standing = std::count_if(jobs.begin(), jobs.end(), asks);
    if (standing == 0)
        return true;
    const bool replace = jobs.size() == 1
                             ? askYesNo(window, QString::fromUtf8(jobs.front().plan.messageKey), {}, refusesByDefault)
                             : askYesNo(window, "kStart_replace_many", {QString::number(standing)}, refusesByDefault);
    if (!replace)
        std::erase_if(jobs, asks);
    return !jobs.empty();
}

/// Imports all on a thread while the window shows how far it is.
std::vector<std::string> work(const std::vector<Job>& jobs, const std::string& root, QWidget* window) {
    std::vector<std::string> imported;
    const QString label = TextWith("kStart_importing", QString::fromStdString(jobs.front().plan.name));
    static_cast<void>(ZProgressDialog(label, window).run([&](const Progress& progress) {
        for (std::size_t index = 0; index < jobs.size(); ++index) {
            const double before = static_cast<double>(index);
            const auto share = [&](double done) { progress((before + done) / static_cast<double>(jobs.size())); };
            if (importOne(jobs[index], root, share))
                imported.push_back(jobs[index].plan.name);
            share(1);
        }
        return true;
    }));
    return imported;
}

} // namespace

std::vector<std::string> importableAmong(const QStringList& paths) {
    std::vector<std::string> files;
    std::vector<std::string> folders;
    for (const QString& path : paths) {
        const std::string source = withoutSlash(path.toStdString());
        const bool isTheme = isFolder(source) && isPlainFile(source + "/description.xml");
        if (isTheme && std::find(folders.begin(), folders.end(), source) == folders.end())
            folders.push_back(source);
        else
            files.push_back(source);
    }
    std::vector<std::string> found = packagesAmong(files);
    found.insert(found.end(), folders.begin(), folders.end());
    return found;
}

std::vector<std::string> importThemes(Workbench& bench, QWidget* window, const std::vector<std::string>& sources,
                                      const std::function<void()>& leaveTheme) {
    // One of a name that stands in the same import is asked about like one that stands in the store.
    std::vector<std::string> themes = ThemeResource::listThemes(bench.root());
    std::vector<Job> jobs;
    for (const std::string& source : sources) {
        const ImportPlan plan = planOf(source, themes);
        if (plan.step == ImportPlan::Step::refuse && sources.size() == 1)
            tellNote(window, QString::fromUtf8(plan.messageKey));
        if (plan.step == ImportPlan::Step::refuse)
            continue;
        themes.push_back(plan.name);
        jobs.push_back({source, plan});
    }
    const bool allRefused = jobs.empty();
    if (!settle(jobs, window) || (allRefused && sources.size() == 1))
        return {};
    const bool touchesOpen = bench.theme() && std::any_of(jobs.begin(), jobs.end(), [&](const Job& job) {
                                 return job.plan.name == bench.theme()->name();
                             });
    if (touchesOpen) {
        leaveTheme();
        bench.closeTheme();
    }
    std::vector<std::string> imported = jobs.empty() ? std::vector<std::string>() : work(jobs, bench.root(), window);
    const bool all = imported.size() == sources.size();
    const auto kind = all ? ZMessageBoxDlg::Kind::Success : ZMessageBoxDlg::Kind::Warning;
    if (sources.size() == 1)
        tellNote(window, QString::fromUtf8(importResultKey(all)), {}, kind);
    else
        tellNote(window, "kStart_import_summary",
                 {QString::number(imported.size()), QString::number(sources.size() - imported.size())}, kind);
    return imported;
}

} // namespace zdt
