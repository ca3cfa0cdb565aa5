#include "lockscreen/expression.h"

#include <algorithm>
#include <limits>

namespace zdt {

namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

std::int32_t wrap(std::int64_t value) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

bool isOperandByte(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '.';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

int precedence(std::string_view token) {
    if (token == "*" || token == "/")
        return 2;
    return token == "+" || token == "-" ? 1 : 0;
}

/// The leading digits as a number, at most the largest one; 0 without any.
std::int32_t leadingNumber(std::string_view token) {
    std::int64_t value = 0;
    for (auto c = token.begin(); c != token.end() && isDigit(*c) && value <= largest; ++c)
        value = value * 10 + (*c - '0');
    return static_cast<std::int32_t>(std::min<std::int64_t>(value, largest));
}

std::unique_ptr<Expression> makeOperation(char sign, std::unique_ptr<Expression> left,
                                          std::unique_ptr<Expression> right) {
    switch (sign) {
    case '+':
        return std::make_unique<Plus>(std::move(left), std::move(right));
    case '-':
        return std::make_unique<Minus>(std::move(left), std::move(right));
    case '*':
        return std::make_unique<Multiply>(std::move(left), std::move(right));
    default:
        return std::make_unique<Divide>(std::move(left), std::move(right));
    }
}

} // namespace

BinaryExpression::BinaryExpression(std::unique_ptr<Expression> left, std::unique_ptr<Expression> right)
    : _left(std::move(left))
    , _right(std::move(right)) {}

BinaryExpression::~BinaryExpression() = default;

std::int32_t Plus::evaluate() const {
    const std::int64_t left = _left->evaluate();
    return wrap(left + _right->evaluate());
}

std::int32_t Minus::evaluate() const {
    const std::int64_t left = _left->evaluate();
    return wrap(left - _right->evaluate());
}

std::int32_t Multiply::evaluate() const {
    const std::int64_t left = _left->evaluate();
    return wrap(left * _right->evaluate());
}

std::int32_t Divide::evaluate() const {
    const std::int64_t left = _left->evaluate();
    const std::int64_t right = _right->evaluate();
    return right == 0 ? 0 : wrap(left / right);
}

bool isOperator(std::string_view token) {
    return token.size() == 1 && std::string_view("+-*/%").find(token) != std::string_view::npos;
}

bool isOperand(std::string_view token) {
    return !isOperator(token) && token != "(" && token != ")";
}

Tokens tokenise(std::string_view text) {
    constexpr std::string_view signs = "+-*/%()";
    Tokens tokens;
    for (std::size_t index = 0; index < text.size();) {
        if (isOperandByte(text[index])) {
            const auto end =
                std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(index), text.end(), isOperandByte);
            const std::size_t length = static_cast<std::size_t>(end - text.begin()) - index;
            tokens.emplace_back(text.substr(index, length));
            index += length;
            continue;
        }
        if (signs.find(text[index]) != std::string_view::npos)
            tokens.emplace_back(1, text[index]);
        ++index;
    }
    return tokens;
}

Tokens toPostfix(const Tokens& tokens) {
    Tokens output;
    Tokens stack;
    const auto popToOutput = [&] {
        output.push_back(std::move(stack.back()));
        stack.pop_back();
    };
    for (const std::string& token : tokens) {
        if (!token.empty() && isDigit(token.front())) {
            output.push_back(token);
        } else if (token == "(") {
            stack.push_back(token);
        } else if (token == ")") {
            while (!stack.empty() && stack.back() != "(")
                popToOutput();
            if (!stack.empty())
                stack.pop_back();
        } else if (isOperator(token)) {
            while (!stack.empty() && precedence(stack.back()) >= precedence(token))
                popToOutput();
            stack.push_back(token);
        }
    }
    while (!stack.empty())
        popToOutput();
    return output;
}

Evaluator::Evaluator(const Tokens& postfix) {
    if (postfix.size() > maxExpressionTokens)
        return;
    std::vector<std::unique_ptr<Expression>> stack;
    for (const std::string& token : postfix) {
        if (!isOperator(token)) {
            stack.push_back(std::make_unique<Number>(leadingNumber(token)));
            continue;
        }
        if (stack.size() < 2)
            break;
        std::unique_ptr<Expression> right = std::move(stack.back());
        stack.pop_back();
        std::unique_ptr<Expression> left = std::move(stack.back());
        stack.back() = makeOperation(token.front(), std::move(left), std::move(right));
    }
    if (!stack.empty())
        _root = std::move(stack.back());
}

Evaluator::~Evaluator() = default;

std::int32_t Evaluator::evaluate() const {
    return _root ? _root->evaluate() : 0;
}

std::int32_t calculate(std::string_view text) {
    return Evaluator(toPostfix(tokenise(text))).evaluate();
}

} // namespace zdt
