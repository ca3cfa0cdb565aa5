#include "editor/codeWords.h"

#include "kit/localisation.h"
#include "model/returnCode.h"

#include <cstdlib>

namespace zdt {

namespace {

QString keyOf(int code) {
    return "kProblem_" + QString::number(std::abs(code));
}

} // namespace

QString codeKey(int code) {
    return Text(keyOf(code)).isEmpty() ? keyOf(returnCode::copyFailed) : keyOf(code);
}

} // namespace zdt
