#include "lockscreen/expression.h"

#include "input.h"

/// Any text has a value, and its tokens lose nothing that counts.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zdt;
    const std::string_view text = fuzz::textOf(data, size);
    const Tokens tokens = tokenise(text);
    std::string spaced;
    for (const std::string& token : tokens)
        spaced += token + " ";
    ZDT_FUZZ_CHECK(tokenise(spaced) == tokens);
    const Tokens postfix = toPostfix(tokens);
    ZDT_FUZZ_CHECK(postfix.size() <= tokens.size());
    ZDT_FUZZ_CHECK(Evaluator(postfix).evaluate() == calculate(text));
    return 0;
}
