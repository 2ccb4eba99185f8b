// Pieces the translation passes share. Not for use outside the dialect's files.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "server/sql_tokens.h"

namespace server::sql {

// The index of the ")" that closes the "(" at open, looking no further than end.
// Raises the server's syntax error when there is none.
std::size_t MatchingParen(const Tokens& tokens, std::size_t open, std::size_t end);

// The tokens between begin and end cut at the commas that stand outside parentheses.
// An empty range gives no arguments; an empty argument is a syntax error.
std::vector<Tokens> SplitArguments(const Tokens& tokens, std::size_t begin, std::size_t end);

void Append(Tokens& out, const Tokens& more);

// name ( a , b , ... ) from pieces already translated.
Tokens MakeCall(const std::string& name, const std::vector<Tokens>& arguments);

// Translates an expression taken out of a function call's arguments.
using RangeTranslator = std::function<Tokens(const Tokens&)>;

// A built-in function of the server that SQLite names or shapes differently
// (IsNull, Len, getdate, Convert, Cast ...), rewritten with its arguments translated.
// Nothing when the function needs no rewriting.
std::optional<Tokens> RewriteFunction(const std::string& name, const std::vector<Tokens>& arguments,
                                      const RangeTranslator& translate);

// Cast(expression AS type) and Convert(type, expression [, style]).
Tokens RewriteCast(const Tokens& argument, const RangeTranslator& translate);
Tokens RewriteConvert(const std::vector<Tokens>& arguments, const RangeTranslator& translate);

}  // namespace server::sql
