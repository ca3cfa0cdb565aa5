#include "assets/screens/screenWriter.h"

#include "assets/art/picture.h"
#include "assets/screens/screenArt.h"
#include "canvas/screens/screenTable.h"
#include "support/atomicFile.h"
#include "support/files.h"
#include "support/parallel.h"

#include <cstdint>
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

bool complain(const std::string& path) {
    std::fprintf(stderr, "zdt_screen_pictures: can't make %s\n", path.c_str());
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
    if (picture.isNull())
        return complain(job.path);
    const QByteArray bytes = encodePng(picture);
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    constexpr std::uint64_t maxBytes = 16U << 20U;
    if (const auto present = readFile(job.path, maxBytes); present && *present == content)
        return true;
    return (!content.empty() && makePath(job.path) && writeFile(job.path, content)) || complain(job.path);
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
