#include "assets/templates/templateWriter.h"

#include "assets/art/generation.h"
#include "assets/art/picture.h"
#include "assets/art/pictureFile.h"
#include "assets/lock/lockPictures.h"
#include "assets/lock/lockScreen.h"
#include "assets/templates/demands.h"
#include "assets/templates/drawing.h"
#include "lockscreen/unlockConfigNode.h"
#include "model/configResNode.h"
#include "model/template.h"
#include "modules/themeNode.h"
#include "support/files.h"
#include "support/parallel.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <vector>

namespace zdt::assets {

namespace {

/// A picture to be drawn, on any thread.
struct Job {
    std::string path;
    std::function<QByteArray()> picture;
};

constexpr const char* program = "zdt_assets";

QByteArray encode(const Demand& demand, const Generation& generation) {
    const QImage picture = draw(demand, generation);
    if (picture.isNull())
        return {};
    return demand.isJpeg ? encodeJpeg(picture, demand.maxBytes) : encodePng(picture);
}

void addJobs(std::vector<Job>& jobs, const std::string& directory, const Generation& generation) {
    for (Demand& demand : collectDemands(generation)) {
        const std::string path = directory + demand.path();
        jobs.push_back({path, [demand = std::move(demand), &generation] { return encode(demand, generation); }});
    }
    for (LockPicture& picture : lockPictures()) {
        const std::string path = directory + picture.path;
        jobs.push_back({path, [draw = picture.draw, path, &generation] { return encodePng(draw(path, generation)); }});
    }
}

bool run(const Job& job) {
    return writePicture(job.path, job.picture(), program);
}

bool runAll(const std::vector<Job>& jobs) {
    return parallelFor(jobs.size(), [&](std::size_t index) { return run(jobs[index]); });
}

/// Writes the lock screen's `theme.xml` for a kind, where the tree puts it, and moves it to the template's folder.
bool saveLockKind(ThemeNode& theme, const char* kind, const char* folder) {
    ResNode* unlock = theme.findByPath(KeyPath{"unlock"});
    const std::string written = theme.path() + "unlock/theme.xml";
    return unlock->setValue(kind) == 0 && unlock->findChild("config")->save(true) &&
           copyFile(written, theme.path() + folder + "/theme.xml") && removeTree(theme.path() + "unlock");
}

/// Description, keys and lock screen: all but the pictures.
bool writeTexts(const std::string& directory, const Generation& generation) {
    ThemeNode theme(typeMask::bigTheme | typeMask::chinese | generation.bit(), directory);
    theme.findChild("version")->setRawValue(std::string(generation.version));
    if (!theme.save(false))
        return false;
    for (ResNode* node : theme.nodesInOrder()) {
        auto* keys = dynamic_cast<ConfigResNode*>(node);
        if (keys && !keys->save(false))
            return false;
    }
    // A new theme's lock is the designed one, so that the slide lock's folder holds no theme.xml: a theme merges both.
    return saveLockKind(theme, unlockType::amazing, "unlock_amazing") &&
           saveLockKind(theme, "magazine", "unlock_magazine") && writeLockScreens(directory, generation);
}

} // namespace

bool writeTemplates(const std::string& directory, std::span<const Generation> wanted) {
    std::vector<Job> jobs;
    for (const Generation& generation : wanted) {
        const std::string target = directory + templateDirectory(generation.index);
        if (!removeTree(target) || !writeTexts(target, generation))
            return complain(target, program);
        addJobs(jobs, target, generation);
    }
    return runAll(jobs);
}

bool redrawPart(const std::string& directory, std::string_view part) {
    std::vector<Job> jobs;
    for (const Generation& generation : generations) {
        const std::string target = directory + templateDirectory(generation.index);
        std::vector<Job> all;
        addJobs(all, target, generation);
        std::ranges::copy_if(all, std::back_inserter(jobs), [&](const Job& job) {
            return std::string_view(job.path).substr(target.size()).starts_with(part);
        });
    }
    return runAll(jobs);
}

} // namespace zdt::assets
