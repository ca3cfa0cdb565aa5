#pragma once

#include <QString>

#include <cstdint>

/// What a theme's card says of its age and size.
namespace zdt {

/// How long ago a theme was changed, in the words of the present language: "just now", minutes, hours, "yesterday", up
/// to six days, and then the date, with the year where it is another one. Days change at midnight of the local time.
/// @param changedAt,now seconds since 1970
[[nodiscard]] QString changeText(std::int64_t changedAt, std::int64_t now);

/// A size such as "24.6 MB", of units of 1,024; "0 KB" for nothing.
[[nodiscard]] QString sizeText(std::uint64_t bytes);

} // namespace zdt
