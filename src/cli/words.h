#pragma once

#include "store/themeResource.h"

#include <string>

/// The words in which `zdt` tells what went wrong.
namespace zdt {

/// Those for a return code.
[[nodiscard]] std::string wordsFor(int code);

/// Those for a thing that stands in the way of an export.
[[nodiscard]] std::string wordsFor(const Problem& problem);

/// Those for a package that could not be imported.
[[nodiscard]] std::string wordsFor(ImportFailure failure);

} // namespace zdt
