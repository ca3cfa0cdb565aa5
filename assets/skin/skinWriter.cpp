#include "assets/skin/skinWriter.h"

#include "assets/art/picture.h"
#include "assets/art/pictureFile.h"
#include "assets/skin/easingPictures.h"
#include "assets/skin/musicPictures.h"
#include "assets/skin/skinPictures.h"
#include "assets/skin/statusOverlays.h"
#include "support/parallel.h"

#include <functional>
#include <vector>

namespace zdt::assets {

namespace {

struct Job {
    std::string path;
    std::function<QByteArray()> draw;
};

/// The large ones first, so that all cores have work until the end.
std::vector<Job> collectJobs(const std::string& program) {
    const std::string skin = program + "skin/ZDThemeDesign/";
    std::vector<Job> jobs;
    for (const StatusOverlay& overlay : statusOverlays)
        jobs.push_back({skin + std::string(overlay.file), [&] { return encodePng(drawStatusOverlay(overlay)); }});
    for (const EasingEffect& effect : easingEffects) {
        for (const EasingCurve& curve : easingCurves)
            jobs.push_back({skin + easingFile(effect, curve), [&] { return easingGif(effect, curve); }});
    }
    for (const SkinPicture& picture : skinPictures)
        jobs.push_back({skin + std::string(picture.file), [&] { return encodePng(drawSkinPicture(picture)); }});
    for (const MusicPicture& picture : musicPictures) {
        jobs.push_back(
            {program + "res/" + std::string(picture.file), [&] { return encodePng(drawMusicPicture(picture)); }});
    }
    return jobs;
}

} // namespace

bool writeSkinPictures(const std::string& program) {
    const std::vector<Job> jobs = collectJobs(program);
    return parallelFor(jobs.size(), [&](std::size_t index) {
        return writePicture(jobs[index].path, jobs[index].draw(), "zdt_skin_pictures");
    });
}

} // namespace zdt::assets
