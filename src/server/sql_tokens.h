// The words of a statement in the server's dialect. The translator works on these,
// never on raw text, so that nothing inside a quoted literal can be mistaken for
// a keyword or a name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace server::sql {

enum class TokenKind {
    Word,        // keyword, name or function name: Select, Items, IsNull
    QuotedName,  // [Product Code] or "Product Code"; text holds the bare name
    Text,        // 'abc' or N'abc'; text holds the value, quotes undoubled
    Number,      // 12, 12.5, 1E-05, 0x1F
    Variable,    // @name, @@IDENTITY
    Symbol,      // ( ) , . ; = <> <= >= != + - * / % & | ^ ~ and the like
};

struct Token {
    TokenKind kind = TokenKind::Symbol;
    std::string text;
    bool spaceBefore = false;  // blank, line break or comment ahead of it in the source
    std::size_t offset = 0;    // where it starts in the source
};

using Tokens = std::vector<Token>;

// Cuts a statement into tokens. An unterminated literal or bracketed name, or a
// character the dialect has no use for, raises the server's syntax error.
Tokens Tokenize(std::string_view sql);

// Writes tokens back as SQLite text: literals and names quoted the SQLite way, and a
// blank wherever two tokens would otherwise run together.
std::string Render(const Tokens& tokens);

bool EqualsIgnoringCase(std::string_view a, std::string_view b);

// Case-insensitive test of a word token.
bool IsWord(const Token& token, std::string_view word);
bool IsSymbol(const Token& token, std::string_view symbol);

Token MakeWord(std::string text);
Token MakeSymbol(std::string text);
Token MakeText(std::string value);
Token MakeNumber(std::string digits);
Token MakeName(std::string name);

// The server's description of a statement it could not read.
[[noreturn]] void ThrowSyntaxError(std::string_view near);

}  // namespace server::sql
