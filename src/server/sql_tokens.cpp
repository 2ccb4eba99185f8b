#include "server/sql_tokens.h"

#include <array>
#include <cctype>

#include "platform/runtime_error.h"

namespace server::sql {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
// Bytes of a multi-byte UTF-8 character count as letters: names may be written in
// any script, as the server allowed.
bool IsWordStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_' || c == '#' || static_cast<unsigned char>(c) >= 0x80;
}
bool IsWordChar(char c) { return IsWordStart(c) || IsDigit(c) || c == '$' || c == '@'; }

[[noreturn]] void ThrowUnclosed(std::string_view rest) {
    throw platform::RuntimeError(platform::err::DatabaseError,
                                 "Unclosed quotation mark after the character string '" + std::string(rest) + "'.");
}

class Lexer {
public:
    explicit Lexer(std::string_view sql) : sql_(sql) {}

    Tokens Run() {
        Tokens tokens;
        bool space = false;
        while (pos_ < sql_.size()) {
            if (SkipBlankOrComment()) {
                space = true;
                continue;
            }
            Token token = Next();
            token.spaceBefore = space;
            tokens.push_back(std::move(token));
            space = false;
        }
        return tokens;
    }

private:
    char At(std::size_t i) const { return i < sql_.size() ? sql_[i] : '\0'; }

    bool SkipBlankOrComment() {
        char c = sql_[pos_];
        if (IsBlank(c)) {
            ++pos_;
            return true;
        }
        if (c == '-' && At(pos_ + 1) == '-') {
            while (pos_ < sql_.size() && sql_[pos_] != '\n') ++pos_;
            return true;
        }
        if (c == '/' && At(pos_ + 1) == '*') {
            auto end = sql_.find("*/", pos_ + 2);
            if (end == std::string_view::npos)
                throw platform::RuntimeError(platform::err::DatabaseError, "Missing end comment mark '*/'.");
            pos_ = end + 2;
            return true;
        }
        return false;
    }

    Token Next() {
        std::size_t start = pos_;
        char c = sql_[pos_];
        Token token;
        token.offset = start;
        if ((c == 'N' || c == 'n') && At(pos_ + 1) == '\'') {
            ++pos_;
            return Quoted(TokenKind::Text, '\'', start);
        }
        if (c == '\'') return Quoted(TokenKind::Text, '\'', start);
        if (c == '"') return Quoted(TokenKind::QuotedName, '"', start);
        if (c == '[') return Bracketed(start);
        if (IsDigit(c) || (c == '.' && IsDigit(At(pos_ + 1)))) return Number(start);
        if (IsWordStart(c)) {
            while (pos_ < sql_.size() && IsWordChar(sql_[pos_])) ++pos_;
            token.kind = TokenKind::Word;
            token.text = std::string(sql_.substr(start, pos_ - start));
            return token;
        }
        if (c == '@') {
            ++pos_;
            if (At(pos_) == '@') ++pos_;
            std::size_t nameStart = pos_;
            while (pos_ < sql_.size() && IsWordChar(sql_[pos_])) ++pos_;
            if (pos_ == nameStart) ThrowSyntaxError("@");
            token.kind = TokenKind::Variable;
            token.text = std::string(sql_.substr(start, pos_ - start));
            return token;
        }
        return Symbol(start);
    }

    Token Quoted(TokenKind kind, char quote, std::size_t start) {
        ++pos_;  // the opening quote
        std::string value;
        for (;;) {
            if (pos_ >= sql_.size()) ThrowUnclosed(value);
            char c = sql_[pos_++];
            if (c == quote) {
                if (At(pos_) == quote) {
                    value += quote;
                    ++pos_;
                    continue;
                }
                break;
            }
            value += c;
        }
        Token token;
        token.kind = kind;
        token.text = std::move(value);
        token.offset = start;
        return token;
    }

    Token Bracketed(std::size_t start) {
        ++pos_;
        std::string name;
        for (;;) {
            if (pos_ >= sql_.size()) ThrowUnclosed(name);
            char c = sql_[pos_++];
            if (c == ']') {
                if (At(pos_) == ']') {
                    name += ']';
                    ++pos_;
                    continue;
                }
                break;
            }
            name += c;
        }
        Token token;
        token.kind = TokenKind::QuotedName;
        token.text = std::move(name);
        token.offset = start;
        return token;
    }

    Token Number(std::size_t start) {
        if (sql_[pos_] == '0' && (At(pos_ + 1) == 'x' || At(pos_ + 1) == 'X')) {
            pos_ += 2;
            while (std::isxdigit(static_cast<unsigned char>(At(pos_)))) ++pos_;
        } else {
            while (IsDigit(At(pos_))) ++pos_;
            if (At(pos_) == '.') {
                ++pos_;
                while (IsDigit(At(pos_))) ++pos_;
            }
            // An exponent only when digits follow: "10end" is 10 and a word.
            char e = At(pos_);
            if (e == 'e' || e == 'E') {
                std::size_t digits = pos_ + 1;
                if (At(digits) == '+' || At(digits) == '-') ++digits;
                if (IsDigit(At(digits))) {
                    pos_ = digits;
                    while (IsDigit(At(pos_))) ++pos_;
                }
            }
        }
        Token token;
        token.kind = TokenKind::Number;
        token.text = std::string(sql_.substr(start, pos_ - start));
        token.offset = start;
        return token;
    }

    Token Symbol(std::size_t start) {
        static constexpr std::array<std::string_view, 7> pairs = {"<>", "<=", ">=", "!=", "!<", "!>", "||"};
        Token token;
        token.kind = TokenKind::Symbol;
        token.offset = start;
        for (auto pair : pairs) {
            if (sql_.substr(pos_, 2) == pair) {
                token.text = std::string(pair);
                pos_ += 2;
                return token;
            }
        }
        static constexpr std::string_view singles = "(),.;=<>+-*/%&|^~";
        char c = sql_[pos_];
        if (singles.find(c) == std::string_view::npos) ThrowSyntaxError(std::string(1, c));
        token.text = std::string(1, c);
        ++pos_;
        return token;
    }

    std::string_view sql_;
    std::size_t pos_ = 0;
};

std::string Quote(const std::string& text, char quote) {
    std::string out(1, quote);
    for (char c : text) {
        out += c;
        if (c == quote) out += quote;
    }
    out += quote;
    return out;
}

bool IsPunctuation(const Token& token) {
    return token.kind == TokenKind::Symbol &&
           (token.text == "(" || token.text == ")" || token.text == "," || token.text == "." || token.text == ";");
}

// Two tokens written side by side must still read as two tokens: "10and" is not
// SQLite, and "-" next to "-" would open a comment.
bool NeedsBlank(const Token& before, const Token& after) {
    bool beforeSymbol = before.kind == TokenKind::Symbol;
    bool afterSymbol = after.kind == TokenKind::Symbol;
    if (!beforeSymbol && !afterSymbol) return true;
    if (beforeSymbol && afterSymbol) return !IsPunctuation(before) && !IsPunctuation(after);
    return false;
}

}  // namespace

Tokens Tokenize(std::string_view sql) { return Lexer(sql).Run(); }

bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

std::string Render(const Tokens& tokens) {
    std::string out;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (i > 0 && (token.spaceBefore || NeedsBlank(tokens[i - 1], token))) out += ' ';
        switch (token.kind) {
            case TokenKind::Text: out += Quote(token.text, '\''); break;
            case TokenKind::QuotedName: out += Quote(token.text, '"'); break;
            default: out += token.text; break;
        }
    }
    return out;
}

bool IsWord(const Token& token, std::string_view word) {
    return token.kind == TokenKind::Word && EqualsIgnoringCase(token.text, word);
}

bool IsSymbol(const Token& token, std::string_view symbol) {
    return token.kind == TokenKind::Symbol && token.text == symbol;
}

Token MakeWord(std::string text) { return Token{TokenKind::Word, std::move(text), false, 0}; }
Token MakeSymbol(std::string text) { return Token{TokenKind::Symbol, std::move(text), false, 0}; }
Token MakeText(std::string value) { return Token{TokenKind::Text, std::move(value), false, 0}; }
Token MakeNumber(std::string digits) { return Token{TokenKind::Number, std::move(digits), false, 0}; }
Token MakeName(std::string name) { return Token{TokenKind::QuotedName, std::move(name), false, 0}; }

void ThrowSyntaxError(std::string_view near) {
    throw platform::RuntimeError(platform::err::DatabaseError, "Incorrect syntax near '" + std::string(near) + "'.");
}

}  // namespace server::sql
