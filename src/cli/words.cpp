#include "cli/words.h"

namespace zdt {

std::string wordsFor(int code) {
    switch (code) {
    case returnCode::cannotRemove:
        return "there is no default to restore, or the file couldn't be removed";
    case returnCode::missingFile:
        return "the file doesn't exist, or it is no plain file";
    case returnCode::copyFailed:
        return "the file couldn't be copied into the theme";
    case returnCode::sameFile:
        return "source and destination are the same file";
    case returnCode::unprintableName:
        return "the file name holds a character that isn't printable ASCII";
    case returnCode::missingParent:
        return "the theme has no place for it";
    case returnCode::protectedPreview:
        return "this preview picture can't be deleted";
    case returnCode::notAllowed:
        return "the name or number isn't allowed";
    case returnCode::cannotRemoveFile:
        return "the file couldn't be removed";
    case returnCode::notFound:
        return "there is no such key in this theme";
    case returnCode::cannotMakeFolder:
        return "the folder couldn't be made";
    case returnCode::emptyValue:
        return "the value is empty";
    case returnCode::patternMismatch:
        return "the value doesn't have the form that the key asks for";
    case returnCode::wrongByteSize:
        return "the file is empty or too large";
    case returnCode::wrongKind:
        return "the file's kind isn't allowed";
    case returnCode::wrongDimensions:
        return "the picture's dimensions aren't allowed";
    case returnCode::unreadablePicture:
        return "the picture's dimensions couldn't be read";
    case returnCode::damagedFile:
        return "the file is damaged and can't be read";
    case returnCode::foreignVersion:
        return "its first digit tells another generation than the theme's";
    default:
        return "it can't be done";
    }
}

std::string wordsFor(const Problem& problem) {
    if (problem.key == "unlock/amazing" && problem.code == incompleteMusic)
        return "a picture of the music control is missing";
    return wordsFor(problem.code);
}

std::string wordsFor(ImportFailure failure) {
    switch (failure) {
    case ImportFailure::none:
        break;
    case ImportFailure::missing:
        return "there is no such file";
    case ImportFailure::badName:
        return "the file's name without its ending can't name a theme";
    case ImportFailure::notAPackage:
        return "it isn't a theme package, or it is damaged";
    case ImportFailure::unsafe:
        return "it holds names that lead outside, links or encrypted files";
    case ImportFailure::tooLarge:
        return "it holds more than a theme can";
    case ImportFailure::incomplete:
        return "not all that it holds could be written";
    }
    return "it can't be imported";
}

} // namespace zdt
