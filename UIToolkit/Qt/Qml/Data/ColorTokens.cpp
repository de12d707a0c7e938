#include "ColorTokens.h"

#include <array>

namespace {

constexpr int TokenCount = ColorTokens::LastId - ColorTokens::FirstId + 1;

// QStringLiteral keeps the text in read-only memory, so that handing out a name costs no allocation.
const std::array<QString, TokenCount> &names()
{
    static const std::array<QString, TokenCount> table = {
#define COLOR_TOKEN(id, enumerator, name) QStringLiteral(name),
#include "ColorTokens.def"
#undef COLOR_TOKEN
    };
    return table;
}

} // namespace

QString ColorTokens::name(ColorToken token)
{
    const int id = int(token);
    return id < FirstId || id > LastId ? QString() : names()[size_t(id - FirstId)];
}
