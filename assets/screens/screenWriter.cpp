#include "assets/screens/screenWriter.h"

#include "assets/art/picture.h"
#include "assets/art/pictureFile.h"
#include "assets/screens/screenArt.h"
#include "canvas/screens/screenTable.h"
#include "support/files.h"
#include "support/parallel.h"

#include <cstdio>
#include <filesystem>
#include <set>
#include <system_error>
#include <vector>

namespace zdt::assets {

namespace {

namespace fs = std::filesystem;

struct Job {
    std::string path;
    const ScreenLayer* layer;
    bool chinese;
};

constexpr const char* program = "zdt_screen_pictures";

bool complain(const std::string& path) {
    std::fprintf(stderr, "%s: can't remove %s\n", program, path.c_str());
    return false;
}

std::vector<Job> collectJobs(const std::string& skin) {
    std::vector<Job> jobs;
    for (const Screen& screen : allScreens()) {
        for (const ScreenLayer& layer : screen.layers) {
            if (layer.kind != LayerKind::shape && layer.kind != LayerKind::art)
                continue;
            for (const bool chinese : {false, true})
                jobs.push_back({skin + layerFile(screen, layer, chinese), &layer, chinese});
        }
    }
    return jobs;
}

bool run(const Job& job) {
    const QImage picture = drawLayer(*job.layer, job.chinese);
    return writePicture(job.path, picture.isNull() ? QByteArray() : encodePng(picture), program);
}

bool removeOthers(const std::string& folder, const std::vector<Job>& jobs) {
    std::set<std::string> wanted;
    for (const Job& job : jobs)
        wanted.insert(fs::path(job.path).lexically_normal().string());
    if (!isFolder(folder))
        return true;
    std::vector<std::string> gone;
    std::vector<fs::path> folders;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_directory())
            folders.push_back(entry.path());
        else if (!wanted.contains(entry.path().lexically_normal().string()))
            gone.push_back(entry.path().string());
    }
    for (const std::string& path : gone) {
        if (!removeFile(path))
            return complain(path);
    }
    // One that still holds something stays.
    std::error_code stays;
    for (auto each = folders.rbegin(); each != folders.rend(); ++each)
        fs::remove(*each, stays);
    return true;
}

} // namespace

bool writeScreens(const std::string& skin) {
    const std::vector<Job> jobs = collectJobs(skin);
    return removeOthers(skin + "simplepic", jobs) &&
           parallelFor(jobs.size(), [&](std::size_t index) { return run(jobs[index]); });
}

} // namespace zdt::assets
