#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The integer calculator for positions in a lock screen layout. It is lenient: a malformed text gives a value, never
/// an error. Arithmetic is on 32-bit signed integers and wraps.
namespace zdt {

class Expression {
public:
    [[nodiscard]] virtual std::int32_t evaluate() const = 0;
    virtual ~Expression() = default;
};

class Number : public Expression {
public:
    explicit Number(std::int32_t value)
        : _value(value) {}
    [[nodiscard]] std::int32_t evaluate() const override { return _value; }

private:
    std::int32_t _value;
};

/// An operator with the operands that it owns. The left one is evaluated first.
class BinaryExpression : public Expression {
public:
    BinaryExpression(std::unique_ptr<Expression> left, std::unique_ptr<Expression> right);
    ~BinaryExpression() override;

protected:
    std::unique_ptr<Expression> _left;
    std::unique_ptr<Expression> _right;
};

class Plus : public BinaryExpression {
public:
    using BinaryExpression::BinaryExpression;
    [[nodiscard]] std::int32_t evaluate() const override;
};

class Minus : public BinaryExpression {
public:
    using BinaryExpression::BinaryExpression;
    [[nodiscard]] std::int32_t evaluate() const override;
};

class Multiply : public BinaryExpression {
public:
    using BinaryExpression::BinaryExpression;
    [[nodiscard]] std::int32_t evaluate() const override;
};

/// Truncating division. A divisor of 0 gives 0.
class Divide : public BinaryExpression {
public:
    using BinaryExpression::BinaryExpression;
    [[nodiscard]] std::int32_t evaluate() const override;
};

/// A failed reading of an expression. No reading of this calculator fails.
class IllegalExpression : public std::exception {
public:
    explicit IllegalExpression(std::string message)
        : _message(std::move(message)) {}
    [[nodiscard]] const char* what() const noexcept override { return _message.c_str(); }

private:
    std::string _message;
};

using Tokens = std::vector<std::string>;

/// The operators, brackets and operands of a text. An operand is a run of digits, letters, "_" and "."; any other byte
/// is skipped.
[[nodiscard]] Tokens tokenise(std::string_view text);

/// Whether the token is one of + - * / %.
[[nodiscard]] bool isOperator(std::string_view token);
/// Whether the token is neither an operator nor a bracket.
[[nodiscard]] bool isOperand(std::string_view token);

/// The tokens in postfix order. Operands that don't begin with a digit are dropped: names are put in before. "%" binds
/// weaker than "+", and as it comes it sends everything off the stack, an open bracket too.
[[nodiscard]] Tokens toPostfix(const Tokens& tokens);

/// The longest postfix list that is read, so that no text makes a tree too deep to walk; a longer one has the value 0.
inline constexpr std::size_t maxExpressionTokens = 4096;

/// The tree of a postfix list. An operator with fewer than two operands in front of it ends the reading; "%" divides as
/// "/" does; an operand counts by its leading digits.
class Evaluator : public Expression {
public:
    explicit Evaluator(const Tokens& postfix);
    ~Evaluator() override;
    /// 0 for an empty list.
    [[nodiscard]] std::int32_t evaluate() const override;

private:
    std::unique_ptr<Expression> _root;
};

/// The value of a text.
[[nodiscard]] std::int32_t calculate(std::string_view text);

} // namespace zdt
