#include "data/Esquema.h"
#include "fuzz/JetText.h"
#include "fuzz/Target.h"
#include "platform/jet/Binder.h"
#include "platform/jet/Parser.h"
#include "platform/jet/engine/SqlCipherRenderer.h"
#include "platform/text/RegionalSettings.h"

// Input: a statement.

namespace {
/// The reader has its limit of parentheses, and the text that is written down has more of them than the one read.
constexpr int deepestText = 150;

int depthOf(const QString &text)
{
    int depth = 0;
    int deepest = 0;
    for (const QChar character : text) {
        depth += character == u'(' ? 1 : character == u')' ? -1 : 0;
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

/// Question marks outside of names.
std::size_t places(const std::string &sql)
{
    std::size_t count = 0;
    bool inName = false;
    for (const char character : sql) {
        inName ^= character == '"';
        count += character == '?' && !inName ? 1U : 0U;
    }
    return count;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const Catalogue catalogue(tabelasDoBanco());
    RegionalSettings::use(QLocale("pt_BR"));
    const QString sql = QString::fromUtf8(Input(data, size).rest());
    Statement statement;
    if (const int error = errorOf([&] { statement = parseStatement(sql); })) {
        require(error == ErrorNumber::BadSql || error == ErrorNumber::Overflow,
                "what is no statement is refused as such");
        return 0;
    }
    const QString text = jetText(statement);
    if (depthOf(text) < deepestText)
        require(jetText(parseStatement(text)) == text, "a statement that is written down reads the same");

    switch (errorOf([&] { bindStatement(statement, catalogue); })) {
    case 0:
        break;
    case ErrorNumber::UnknownTable:
    case ErrorNumber::UnknownField:
    case ErrorNumber::TypeMismatch:
    case ErrorNumber::BadSql:
        return 0;
    default:
        require(false, "a statement is refused for its names, its types or its form");
    }
    const RenderedStatement rendered = renderStatement(statement);
    require(places(rendered.sql) == rendered.parameters.size(), "each literal has its place");
    for (const Expression *literal : rendered.parameters)
        require(literal->isLiteral(), "only literals are handed over");
    return 0;
}
