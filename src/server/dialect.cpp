// The translation runs as passes over tokens: the owner "dbo." goes, then each
// parenthesised scope is walked once, rewriting TOP into LIMIT, table-function
// calls into tables, the server's built-in functions and variables into SQLite's.
#include "server/dialect.h"

#include <charconv>
#include <cstdlib>
#include <optional>

#include "platform/runtime_error.h"
#include "server/dialect_internal.h"

namespace server {
namespace sql {

std::size_t MatchingParen(const Tokens& tokens, std::size_t open, std::size_t end) {
    int depth = 0;
    for (std::size_t i = open; i < end; ++i) {
        if (IsSymbol(tokens[i], "("))
            ++depth;
        else if (IsSymbol(tokens[i], ")") && --depth == 0)
            return i;
    }
    ThrowSyntaxError(tokens[open].text);
}

std::vector<Tokens> SplitArguments(const Tokens& tokens, std::size_t begin, std::size_t end) {
    std::vector<Tokens> arguments;
    if (begin == end) return arguments;
    Tokens current;
    int depth = 0;
    for (std::size_t i = begin; i < end; ++i) {
        const Token& token = tokens[i];
        if (IsSymbol(token, "("))
            ++depth;
        else if (IsSymbol(token, ")"))
            --depth;
        if (depth == 0 && IsSymbol(token, ",")) {
            if (current.empty()) ThrowSyntaxError(",");
            arguments.push_back(std::move(current));
            current.clear();
            continue;
        }
        current.push_back(token);
    }
    if (current.empty()) ThrowSyntaxError(")");
    arguments.push_back(std::move(current));
    return arguments;
}

void Append(Tokens& out, const Tokens& more) { out.insert(out.end(), more.begin(), more.end()); }

Tokens MakeCall(const std::string& name, const std::vector<Tokens>& arguments) {
    Tokens out{MakeWord(name), MakeSymbol("(")};
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (i > 0) out.push_back(MakeSymbol(","));
        std::size_t first = out.size();
        Append(out, arguments[i]);
        if (out.size() > first) out[first].spaceBefore = false;
    }
    out.push_back(MakeSymbol(")"));
    return out;
}

namespace {

bool IsName(const Token& token) { return token.kind == TokenKind::Word || token.kind == TokenKind::QuotedName; }

bool IsAnyWord(const Token& token, std::initializer_list<std::string_view> words) {
    for (auto word : words)
        if (IsWord(token, word)) return true;
    return false;
}

// Words after which a FROM list is over.
bool EndsFromList(const Token& token) {
    return IsAnyWord(token, {"where", "group", "order", "having", "on", "set", "values", "limit", "union", "except",
                             "intersect", "into", "option"});
}

// Words that may follow a table in a FROM list and so are not its alias.
bool FollowsTableSource(const Token& token) {
    return EndsFromList(token) ||
           IsAnyWord(token, {"join", "inner", "left", "right", "full", "cross", "outer", "natural", "using", "with"});
}

// Table hints of the server that SQLite has no use for: WITH (NOLOCK) and the like.
bool IsTableHint(const Token& token) {
    return IsAnyWord(token, {"nolock", "readuncommitted", "readcommitted", "rowlock", "updlock", "holdlock", "readpast",
                             "tablock", "paglock", "xlock"});
}

// "dbo." before a name goes: SQLite knows one owner only.
Tokens WithoutOwner(const Tokens& tokens) {
    Tokens out;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        bool owner = (token.kind == TokenKind::Word || token.kind == TokenKind::QuotedName) &&
                     EqualsIgnoringCase(token.text, "dbo") && i + 1 < tokens.size() && IsSymbol(tokens[i + 1], ".") &&
                     (i == 0 || !IsSymbol(tokens[i - 1], "."));
        if (owner) {
            ++i;  // the dot
            if (i + 1 < tokens.size()) {
                Token next = tokens[i + 1];
                next.spaceBefore = token.spaceBefore;
                out.push_back(std::move(next));
                ++i;
            }
            continue;
        }
        out.push_back(token);
    }
    return out;
}

platform::Value LiteralNumber(const std::string& digits, bool negative) {
    std::int64_t whole = 0;
    auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), whole);
    if (ec == std::errc() && end == digits.data() + digits.size()) return negative ? -whole : whole;
    if (digits.size() > 2 && (digits[1] == 'x' || digits[1] == 'X')) {
        auto [hexEnd, hexEc] = std::from_chars(digits.data() + 2, digits.data() + digits.size(), whole, 16);
        if (hexEc == std::errc() && hexEnd == digits.data() + digits.size()) return negative ? -whole : whole;
        ThrowSyntaxError(digits);
    }
    double value = std::strtod(digits.c_str(), nullptr);
    return negative ? -value : value;
}

// An argument of a table function: a number, a text or NULL, as written.
platform::Value LiteralArgument(const Tokens& argument) {
    if (argument.size() == 1) {
        const Token& token = argument[0];
        if (token.kind == TokenKind::Text) return token.text;
        if (token.kind == TokenKind::Number) return LiteralNumber(token.text, false);
        if (IsWord(token, "null")) return platform::Value::Null();
    }
    if (argument.size() == 2 && (IsSymbol(argument[0], "-") || IsSymbol(argument[0], "+")) &&
        argument[1].kind == TokenKind::Number)
        return LiteralNumber(argument[1].text, IsSymbol(argument[0], "-"));
    ThrowSyntaxError(argument.front().text);
}

class ScopeTranslator {
public:
    explicit ScopeTranslator(const TableFunctionResolver* resolve) : resolve_(resolve) {}

    // One parenthesised scope, or the whole statement: a SELECT ... TOP n in it takes
    // its LIMIT at the scope's end.
    Tokens Scope(const Tokens& in, std::size_t begin, std::size_t end) {
        Tokens out;
        std::optional<Token> limit;
        bool compound = false;
        bool inFrom = false;
        bool expectSource = false;

        for (std::size_t i = begin; i < end;) {
            const Token& token = in[i];
            const bool callFollows = i + 1 < end && IsSymbol(in[i + 1], "(");

            if (IsSymbol(token, ")") || IsSymbol(token, ";")) ThrowSyntaxError(token.text);

            if (IsWord(token, "select")) {
                out.push_back(token);
                ++i;
                if (i < end && IsAnyWord(in[i], {"distinct", "all"})) out.push_back(in[i++]);
                if (i < end && IsWord(in[i], "top")) {
                    if (limit) ThrowSyntaxError(in[i].text);
                    i = ReadTop(in, i, end, limit);
                }
                inFrom = expectSource = false;
                continue;
            }
            if (IsWord(token, "top")) ThrowSyntaxError(token.text);  // UPDATE TOP, DELETE TOP
            if (IsAnyWord(token, {"from", "join"})) {
                inFrom = expectSource = true;
                out.push_back(token);
                ++i;
                continue;
            }
            if (EndsFromList(token)) {
                if (IsAnyWord(token, {"union", "except", "intersect"})) compound = true;
                inFrom = expectSource = false;
                out.push_back(token);
                ++i;
                continue;
            }
            if (IsSymbol(token, ",")) {
                expectSource = inFrom;
                out.push_back(token);
                ++i;
                continue;
            }
            if (expectSource && IsName(token) && callFollows) {
                i = TableFunction(in, i, end, out);
                expectSource = false;
                continue;
            }
            if (IsWord(token, "with") && callFollows) {
                i = SkipTableHint(in, i, end);
                continue;
            }
            expectSource = false;
            // "In ()" was a syntax error on the server; SQLite would read it as false
            // and let an update with an empty list of documents pass without effect.
            if (IsWord(token, "in") && callFollows && i + 2 < end && IsSymbol(in[i + 2], ")")) ThrowSyntaxError(")");
            if (token.kind == TokenKind::Word && callFollows) {
                std::size_t close = MatchingParen(in, i + 1, end);
                auto rewritten = RewriteFunction(token.text, SplitArguments(in, i + 2, close),
                                                 [this](const Tokens& part) { return Scope(part, 0, part.size()); });
                if (rewritten) {
                    rewritten->front().spaceBefore = token.spaceBefore;
                    Append(out, *rewritten);
                    i = close + 1;
                    continue;
                }
                // Any other function, or a table's column list: the name stays, and
                // the parentheses are a scope of their own.
            }
            if (IsSymbol(token, "(")) {
                std::size_t close = MatchingParen(in, i, end);
                out.push_back(token);
                Append(out, Scope(in, i + 1, close));
                out.push_back(in[close]);
                i = close + 1;
                continue;
            }
            // The server joined texts with "+"; next to a text literal that is what
            // it meant. Between two columns it cannot be told from a sum here.
            if (IsSymbol(token, "+") && ((!out.empty() && out.back().kind == TokenKind::Text) ||
                                         (i + 1 < end && in[i + 1].kind == TokenKind::Text))) {
                Token joined = MakeSymbol("||");
                joined.spaceBefore = token.spaceBefore;
                out.push_back(joined);
                ++i;
                continue;
            }
            out.push_back(Plain(token));
            ++i;
        }

        if (limit) {
            // The server's TOP binds to its own SELECT; SQLite's LIMIT to the whole
            // compound. Rather refuse than limit the wrong rows.
            if (compound) ThrowSyntaxError("top");
            Token word = MakeWord("LIMIT");
            word.spaceBefore = true;
            out.push_back(word);
            out.push_back(*limit);
        }
        return out;
    }

private:
    // TOP n or TOP (n); PERCENT and WITH TIES have no SQLite equal.
    std::size_t ReadTop(const Tokens& in, std::size_t top, std::size_t end, std::optional<Token>& limit) {
        std::size_t i = top + 1;
        bool parenthesised = i < end && IsSymbol(in[i], "(");
        if (parenthesised) ++i;
        if (i >= end || in[i].kind != TokenKind::Number) ThrowSyntaxError(in[top].text);
        limit = in[i];
        limit->spaceBefore = true;
        ++i;
        if (parenthesised) {
            if (i >= end || !IsSymbol(in[i], ")")) ThrowSyntaxError(in[i - 1].text);
            ++i;
        }
        if (i < end && (IsWord(in[i], "percent") || IsWord(in[i], "with"))) ThrowSyntaxError(in[i].text);
        return i;
    }

    std::size_t TableFunction(const Tokens& in, std::size_t nameAt, std::size_t end, Tokens& out) {
        const Token& name = in[nameAt];
        std::size_t close = MatchingParen(in, nameAt + 1, end);
        TableFunctionCall call{name.text, {}};
        for (const auto& argument : SplitArguments(in, nameAt + 2, close))
            call.arguments.push_back(LiteralArgument(argument));
        if (!resolve_ || !*resolve_)
            throw platform::RuntimeError(platform::err::DatabaseError, "Invalid object name '" + name.text + "'.");

        Token table = MakeName((*resolve_)(call));
        table.spaceBefore = name.spaceBefore;
        out.push_back(table);
        // Without an alias the rows still answer to the function's name.
        std::size_t after = close + 1;
        bool aliased = after < end && (IsName(in[after]) && !FollowsTableSource(in[after]));
        if (!aliased) {
            Token as = MakeWord("AS");
            as.spaceBefore = true;
            out.push_back(as);
            out.push_back(MakeName(name.text));
        }
        return close + 1;
    }

    std::size_t SkipTableHint(const Tokens& in, std::size_t with, std::size_t end) {
        std::size_t close = MatchingParen(in, with + 1, end);
        for (std::size_t i = with + 2; i < close; ++i)
            if (!IsTableHint(in[i]) && !IsSymbol(in[i], ",")) ThrowSyntaxError(in[i].text);
        return close + 1;
    }

    // A token that stands alone: variables of the server and its two odd operators.
    static Token Plain(const Token& token) {
        if (token.kind == TokenKind::Variable) {
            Token out = MakeWord(EqualsIgnoringCase(token.text, "@@identity")   ? "last_insert_rowid()"
                                 : EqualsIgnoringCase(token.text, "@@rowcount") ? "changes()"
                                                                                : "");
            if (out.text.empty())
                throw platform::RuntimeError(platform::err::DatabaseError,
                                             "Must declare the scalar variable \"" + token.text + "\".");
            out.spaceBefore = token.spaceBefore;
            return out;
        }
        if (IsSymbol(token, "!<") || IsSymbol(token, "!>")) {
            Token out = MakeSymbol(token.text == "!<" ? ">=" : "<=");
            out.spaceBefore = token.spaceBefore;
            return out;
        }
        return token;
    }

    const TableFunctionResolver* resolve_;
};

std::string TranslateOne(const std::string& statement, const TableFunctionResolver* resolve) {
    Tokens tokens = WithoutOwner(Tokenize(statement));
    return Render(ScopeTranslator(resolve).Scope(tokens, 0, tokens.size()));
}

std::string TranslateBatch(const std::string& sql, const TableFunctionResolver* resolve) {
    std::string out;
    for (const auto& statement : SplitBatch(sql)) {
        if (!out.empty()) out += "; ";
        out += TranslateOne(statement, resolve);
    }
    return out;
}

}  // namespace
}  // namespace sql

std::vector<std::string> SplitBatch(const std::string& sql) {
    std::vector<std::string> statements;
    const sql::Tokens tokens = sql::Tokenize(sql);
    std::size_t first = 0;
    for (std::size_t i = 0; i <= tokens.size(); ++i) {
        if (i < tokens.size() && !sql::IsSymbol(tokens[i], ";")) continue;
        if (i > first) {
            std::size_t from = tokens[first].offset;
            std::size_t to = i < tokens.size() ? tokens[i].offset : sql.size();
            statements.push_back(sql.substr(from, to - from));
        }
        first = i + 1;
    }
    return statements;
}

std::string TranslateStatement(const std::string& sql) { return sql::TranslateBatch(sql, nullptr); }

std::string TranslateStatement(const std::string& sql, const TableFunctionResolver& resolve) {
    return sql::TranslateBatch(sql, &resolve);
}

}  // namespace server
