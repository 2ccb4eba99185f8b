// Cast and Convert: the server's type names mapped to what SQLite stores. Dates are
// kept as 'YYYY-MM-DD HH:MM:SS' text, so a date type becomes datetime() or date(),
// and Convert's date styles become strftime patterns.
#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

#include "platform/runtime_error.h"
#include "server/dialect_internal.h"

namespace server::sql {
namespace {

enum class Target { Integer, Real, Decimal, Text, DateTime, DateOnly, Bit };

struct SqlType {
    Target target = Target::Text;
    std::optional<int> length;  // of a text type; none for max or when not given
    int scale = 0;              // of a decimal type
};

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

int SmallNumber(const Token& token) {
    int value = 0;
    auto [end, ec] = std::from_chars(token.text.data(), token.text.data() + token.text.size(), value);
    if (token.kind != TokenKind::Number || ec != std::errc() || end != token.text.data() + token.text.size())
        ThrowSyntaxError(token.text);
    return value;
}

// type-name [ ( length | max ) ] or decimal [ ( precision [, scale] ) ]
SqlType ParseType(const Tokens& tokens) {
    if (tokens.empty()) ThrowSyntaxError(")");
    const Token& nameToken = tokens.front();
    if (nameToken.kind != TokenKind::Word && nameToken.kind != TokenKind::QuotedName) ThrowSyntaxError(nameToken.text);
    const std::string name = Lower(nameToken.text);

    std::vector<Token> sizes;
    if (tokens.size() > 1) {
        if (!IsSymbol(tokens[1], "(") || !IsSymbol(tokens.back(), ")")) ThrowSyntaxError(tokens[1].text);
        for (std::size_t i = 2; i + 1 < tokens.size(); ++i) {
            bool comma = (i % 2) == 1;
            if (comma != IsSymbol(tokens[i], ",")) ThrowSyntaxError(tokens[i].text);
            if (!comma) sizes.push_back(tokens[i]);
        }
        if (sizes.empty() || sizes.size() > 2) ThrowSyntaxError(")");
    }

    SqlType type;
    if (name == "int" || name == "integer" || name == "bigint" || name == "smallint" || name == "tinyint") {
        type.target = Target::Integer;
    } else if (name == "float" || name == "real") {
        type.target = Target::Real;
    } else if (name == "money" || name == "smallmoney") {
        type.target = Target::Decimal;
        type.scale = 4;
    } else if (name == "decimal" || name == "numeric" || name == "dec") {
        type.target = Target::Decimal;
        if (sizes.size() == 2)
            type.scale = SmallNumber(sizes[1]);
        else if (!sizes.empty())
            SmallNumber(sizes[0]);
    } else if (name == "varchar" || name == "nvarchar" || name == "char" || name == "nchar" || name == "text" ||
               name == "ntext" || name == "sysname") {
        type.target = Target::Text;
        if (sizes.size() == 2) ThrowSyntaxError(",");
        if (!sizes.empty() && !IsWord(sizes[0], "max")) type.length = SmallNumber(sizes[0]);
    } else if (name == "datetime" || name == "smalldatetime" || name == "datetime2") {
        type.target = Target::DateTime;
    } else if (name == "date") {
        type.target = Target::DateOnly;
    } else if (name == "bit") {
        type.target = Target::Bit;
    } else {
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "Type " + nameToken.text + " is not a defined system type.");
    }
    return type;
}

Tokens CastAs(const Tokens& expression, const char* sqliteType) {
    Tokens out{MakeWord("CAST"), MakeSymbol("(")};
    Append(out, expression);
    Append(out, {MakeWord("AS"), MakeWord(sqliteType), MakeSymbol(")")});
    return out;
}

Tokens Number(int value) { return {MakeNumber(std::to_string(value))}; }

Tokens Limited(Tokens text, const SqlType& type) {
    if (!type.length) return text;
    return MakeCall("substr", {text, Number(1), Number(*type.length)});
}

Tokens Converted(const Tokens& expression, const SqlType& type) {
    switch (type.target) {
        case Target::Integer: return CastAs(expression, "INTEGER");
        case Target::Real: return CastAs(expression, "REAL");
        case Target::Decimal: {
            Tokens rounded = MakeCall("round", {CastAs(expression, "REAL"), Number(type.scale)});
            return type.scale == 0 ? CastAs(rounded, "INTEGER") : rounded;
        }
        case Target::Text: return Limited(CastAs(expression, "TEXT"), type);
        case Target::DateTime: return MakeCall("datetime", {expression});
        case Target::DateOnly: return MakeCall("date", {expression});
        case Target::Bit: {
            // Any number but 0 is 1; Null stays Null.
            Tokens out{MakeSymbol("("), MakeWord("CASE"), MakeWord("WHEN")};
            Append(out, CastAs(expression, "REAL"));
            Append(out, {MakeSymbol("<>"), MakeNumber("0"), MakeWord("THEN"), MakeNumber("1"), MakeWord("WHEN")});
            Append(out, CastAs(expression, "REAL"));
            Append(out, {MakeSymbol("="), MakeNumber("0"), MakeWord("THEN"), MakeNumber("0"), MakeWord("END"),
                         MakeSymbol(")")});
            return out;
        }
    }
    return expression;
}

// The date styles of Convert to text, as strftime patterns.
std::optional<std::string> StylePattern(int style) {
    switch (style) {
        case 101: return "%m/%d/%Y";
        case 103: return "%d/%m/%Y";
        case 104: return "%d.%m.%Y";
        case 105: return "%d-%m-%Y";
        case 108: return "%H:%M:%S";
        case 110: return "%m-%d-%Y";
        case 111: return "%Y/%m/%d";
        case 112: return "%Y%m%d";
        case 20:
        case 120: return "%Y-%m-%d %H:%M:%S";
        case 21:
        case 121: return "%Y-%m-%d %H:%M:%f";
        case 23: return "%Y-%m-%d";
        default: return std::nullopt;
    }
}

}  // namespace

Tokens RewriteCast(const Tokens& argument, const RangeTranslator& translate) {
    // The AS that separates the expression from the type is the last one at depth 0.
    std::optional<std::size_t> as;
    int depth = 0;
    for (std::size_t i = 0; i < argument.size(); ++i) {
        if (IsSymbol(argument[i], "("))
            ++depth;
        else if (IsSymbol(argument[i], ")"))
            --depth;
        else if (depth == 0 && IsWord(argument[i], "as"))
            as = i;
    }
    if (!as || *as == 0) ThrowSyntaxError(argument.empty() ? ")" : argument.front().text);
    Tokens expression(argument.begin(), argument.begin() + static_cast<std::ptrdiff_t>(*as));
    Tokens typeTokens(argument.begin() + static_cast<std::ptrdiff_t>(*as) + 1, argument.end());
    return Converted(translate(expression), ParseType(typeTokens));
}

Tokens RewriteConvert(const std::vector<Tokens>& arguments, const RangeTranslator& translate) {
    SqlType type = ParseType(arguments[0]);
    Tokens expression = translate(arguments[1]);
    if (arguments.size() == 2) return Converted(expression, type);

    const Tokens& styleTokens = arguments[2];
    if (styleTokens.size() != 1) ThrowSyntaxError(styleTokens.front().text);
    int style = SmallNumber(styleTokens.front());
    if (style == 0) return Converted(expression, type);
    if (type.target != Target::Text) ThrowSyntaxError(styleTokens.front().text);
    auto pattern = StylePattern(style);
    if (!pattern)
        throw platform::RuntimeError(
            platform::err::DatabaseError,
            std::to_string(style) +
                " is not a valid style number when converting from datetime to a character string.");
    return Limited(MakeCall("strftime", {{MakeText(*pattern)}, expression}), type);
}

}  // namespace server::sql
