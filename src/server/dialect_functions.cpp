// Built-in functions of the server that SQLite spells or shapes differently.
#include <algorithm>
#include <cctype>

#include "platform/runtime_error.h"
#include "server/dialect_internal.h"

namespace server::sql {
namespace {

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

void RequireArguments(const std::string& name, const std::vector<Tokens>& arguments, std::size_t count) {
    if (arguments.size() != count)
        throw platform::RuntimeError(platform::err::DatabaseError,
                                     "The " + name + " function requires " + std::to_string(count) + " argument(s).");
}

Tokens Parenthesised(const Tokens& inner) {
    Tokens out{MakeSymbol("(")};
    Append(out, inner);
    out.push_back(MakeSymbol(")"));
    return out;
}

// Right(a, n): SQLite's substr counts from the end for a negative start, but a
// start of 0 would give the whole text, so a count of 0 or less is caught first.
Tokens RightOf(const Tokens& text, const Tokens& count) {
    Tokens out{MakeSymbol("("), MakeWord("CASE"), MakeWord("WHEN")};
    Append(out, Parenthesised(count));
    Append(out, {MakeSymbol("<="), MakeNumber("0"), MakeWord("THEN"), MakeText(""), MakeWord("ELSE")});
    Tokens negated{MakeSymbol("-")};
    Append(negated, Parenthesised(count));
    Append(out, MakeCall("substr", {text, negated}));
    Append(out, {MakeWord("END"), MakeSymbol(")")});
    return out;
}

}  // namespace

std::optional<Tokens> RewriteFunction(const std::string& name, const std::vector<Tokens>& arguments,
                                      const RangeTranslator& translate) {
    const std::string key = Lower(name);
    auto translated = [&] {
        std::vector<Tokens> out;
        for (const auto& argument : arguments) out.push_back(translate(argument));
        return out;
    };

    if (key == "isnull") {
        RequireArguments(name, arguments, 2);
        return MakeCall("ifnull", translated());
    }
    if (key == "len") {
        // The server's Len does not count trailing blanks.
        RequireArguments(name, arguments, 1);
        return MakeCall("length", {MakeCall("rtrim", translated())});
    }
    if (key == "getdate" || key == "getutcdate") {
        RequireArguments(name, arguments, 0);
        // The same text form the database stores its date-times in.
        if (key == "getdate") return MakeCall("datetime", {{MakeText("now")}, {MakeText("localtime")}});
        return MakeCall("datetime", {{MakeText("now")}});
    }
    if (key == "scope_identity") {
        RequireArguments(name, arguments, 0);
        return MakeCall("last_insert_rowid", {});
    }
    if (key == "left") {
        RequireArguments(name, arguments, 2);
        auto args = translated();
        return MakeCall("substr", {args[0], {MakeNumber("1")}, args[1]});
    }
    if (key == "right") {
        RequireArguments(name, arguments, 2);
        auto args = translated();
        return RightOf(args[0], args[1]);
    }
    if (key == "charindex") {
        RequireArguments(name, arguments, 2);
        auto args = translated();
        return MakeCall("instr", {args[1], args[0]});
    }
    if (key == "substring") {
        RequireArguments(name, arguments, 3);
        return MakeCall("substr", translated());
    }
    if (key == "cast") {
        RequireArguments(name, arguments, 1);
        return RewriteCast(arguments[0], translate);
    }
    if (key == "convert") {
        if (arguments.size() != 2 && arguments.size() != 3) RequireArguments(name, arguments, 2);
        return RewriteConvert(arguments, translate);
    }
    return std::nullopt;
}

}  // namespace server::sql
