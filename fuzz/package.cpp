#include "input.h"
#include "store/themeResource.h"

#include <zip.h>

#include <memory>
#include <set>
#include <vector>

/// The input is a package as it stands, or, where it doesn't begin like an archive, the description of one: for each
/// entry a byte of flags, the lengths of its name and its content, and these. An archive may hold others.
namespace zdt {
namespace {

constexpr unsigned isNested = 1;      ///< The entry is an archive of the entries that follow.
constexpr unsigned isLast = 2;        ///< The archive ends behind the entry.
constexpr unsigned isUnixLink = 4;    ///< The entry is marked as a link.
constexpr unsigned isDescription = 8; ///< It has the name that no package is without.
constexpr unsigned isDeflated = 16;
constexpr int deepest = 3;
constexpr std::size_t mostEntries = 40;

/// Makes archives in memory.
class Packer {
public:
    explicit Packer(std::string_view bytes)
        : _bytes(bytes) {}

    std::string pack(int depth = 0) {
        zip_error_t error;
        zip_source_t* const buffer = zip_source_buffer_create(nullptr, 0, 0, &error);
        ZDT_FUZZ_CHECK(buffer);
        zip_source_keep(buffer);
        zip_t* const archive = zip_open_from_source(buffer, ZIP_TRUNCATE, &error);
        ZDT_FUZZ_CHECK(archive);
        std::vector<std::unique_ptr<std::string>> contents; // The archive reads them when it is closed.
        bool isOpen = true;
        while (isOpen && !_bytes.isEmpty() && _entries++ < mostEntries)
            isOpen = addEntry(archive, contents, depth);
        if (zip_close(archive) != 0)
            zip_discard(archive);
        std::string whole = contentOf(buffer);
        zip_source_free(buffer);
        return whole;
    }

private:
    bool addEntry(zip_t* archive, std::vector<std::unique_ptr<std::string>>& contents, int depth) {
        const unsigned flags = _bytes.next();
        std::string name(_bytes.take(_bytes.below(64)));
        if ((flags & isDescription) != 0)
            name = "description.xml";
        const std::size_t length = _bytes.next();
        const bool packsMore = (flags & isNested) != 0 && depth < deepest;
        contents.push_back(
            std::make_unique<std::string>(packsMore ? pack(depth + 1) : std::string(_bytes.take(length))));
        zip_source_t* const source = zip_source_buffer(archive, contents.back()->data(), contents.back()->size(), 0);
        const zip_int64_t index = zip_file_add(archive, name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
        } else {
            setKind(archive, static_cast<zip_uint64_t>(index), flags);
        }
        return (flags & isLast) == 0;
    }

    static void setKind(zip_t* archive, zip_uint64_t index, unsigned flags) {
        constexpr zip_uint32_t linkMode = 0120777U << 16;
        zip_set_file_compression(archive, index, (flags & isDeflated) != 0 ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 1);
        if ((flags & isUnixLink) != 0)
            zip_file_set_external_attributes(archive, index, 0, ZIP_OPSYS_UNIX, linkMode);
    }

    static std::string contentOf(zip_source_t* buffer) {
        zip_stat_t status;
        if (zip_source_stat(buffer, &status) != 0 || (status.valid & ZIP_STAT_SIZE) == 0 ||
            zip_source_open(buffer) != 0)
            return {};
        std::string content(status.size, '\0');
        const zip_int64_t length = zip_source_read(buffer, content.data(), content.size());
        zip_source_close(buffer);
        content.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
        return content;
    }

    fuzz::Bytes _bytes;
    std::size_t _entries = 0;
};

std::set<std::string> namesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename().string());
    return names;
}

bool holdsOnlyFilesAndFolders(const std::string& folder) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_symlink() || (!entry.is_regular_file() && !entry.is_directory()))
            return false;
    }
    return true;
}

/// An import that failed leaves nothing, and none writes outside of the store's own folders.
void check(std::string_view package, bool opens) {
    static const fuzz::Scratch scratch;
    const std::string root = scratch.path("store/");
    std::filesystem::create_directory(root);
    const std::string file = scratch.write("T.zdt", package);
    std::string name;
    ImportFailure failure = ImportFailure::none;
    const bool isImported = ThemeResource::importTheme(file, name, root, &failure);
    ZDT_FUZZ_CHECK(name == "T" && isImported == (failure == ImportFailure::none));
    ZDT_FUZZ_CHECK(std::filesystem::exists(root + "res/T/description.xml") == isImported);
    ZDT_FUZZ_CHECK(!std::filesystem::exists(root + "tmp") || namesIn(root + "tmp").empty());
    ZDT_FUZZ_CHECK((namesIn(scratch.path()) == std::set<std::string>{"T.zdt", "store"}));
    for (const std::string& folder : namesIn(root))
        ZDT_FUZZ_CHECK(folder == "res" || folder == "config" || folder == "tmp");
    if (!isImported)
        return;
    ZDT_FUZZ_CHECK(holdsOnlyFilesAndFolders(root + "res/T"));
    static_cast<void>(ThemeResource::readDescription(name, root));
    if (opens) {
        std::vector<Problem> problems;
        static_cast<void>(ThemeResource::openTheme(name, true, root)->checkFiles(problems));
    }
    ZDT_FUZZ_CHECK(ThemeResource::deleteTheme(name, root));
    ZDT_FUZZ_CHECK(namesIn(root + "res").empty());
}

} // namespace
} // namespace zdt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = zdt::fuzz::textOf(data, size);
    if (input.starts_with("PK"))
        zdt::check(input, false);
    else
        zdt::check(zdt::Packer(input.substr(0, input.size() - (input.empty() ? 0 : 1))).pack(),
                   !input.empty() && input.back() == 'o');
    return 0;
}
