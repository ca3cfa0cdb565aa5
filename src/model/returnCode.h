#pragma once

/// What an operation of the model gives when an author's file or value can't be taken: 0 or a small negative code. The
/// layers above turn a code into words.
namespace zdt::returnCode {

inline constexpr int success = 0;
inline constexpr int cannotRemove = -1;       ///< A file couldn't be removed, or there is no default to restore.
inline constexpr int missingFile = -2;        ///< The given file doesn't exist, or isn't a plain file.
inline constexpr int copyFailed = -3;         ///< Copying the file into the theme failed.
inline constexpr int sameFile = -4;           ///< Source and destination are the same file.
inline constexpr int unprintableName = -5;    ///< The file name holds a byte outside 32 to 126.
inline constexpr int missingParent = -6;      ///< A node that must exist, such as a new node's parent, is missing.
inline constexpr int protectedPreview = -8;   ///< A protected preview picture can't be deleted.
inline constexpr int notAllowed = -9;         ///< The name or number isn't allowed.
inline constexpr int cannotRemoveFile = -10;  ///< The node's file couldn't be removed.
inline constexpr int notFound = -14;          ///< The node wasn't found.
inline constexpr int cannotMakeFolder = -17;  ///< The target directory couldn't be made.
inline constexpr int emptyValue = -18;        ///< The value is empty.
inline constexpr int patternMismatch = -19;   ///< The value doesn't match the node's regular expression.
inline constexpr int wrongByteSize = -20;     ///< The file's size is zero or above the node's limit.
inline constexpr int wrongKind = -21;         ///< The file's kind isn't allowed.
inline constexpr int wrongDimensions = -22;   ///< The picture's dimensions aren't allowed.
inline constexpr int unreadablePicture = -23; ///< The picture's dimensions couldn't be read.
inline constexpr int damagedFile = -24;       ///< A file of the theme is there but can't be read; in lists of problems.
inline constexpr int foreignVersion =
    -25; ///< The version tells another generation than the theme's; in lists of problems.

} // namespace zdt::returnCode
