#pragma once

#include <QString>

/*!
 * The colour sets that the native data tables use, as numbers instead of strings.
 *
 * \c None stands for "no colour set"; every other value is the position of the set's name in the
 * host palette's sorted list of names.
 */
enum class ColorToken : quint16 {
    None = 0,
#define COLOR_TOKEN(id, enumerator, name) enumerator = id,
#include "ColorTokens.def"
#undef COLOR_TOKEN
};

namespace ColorTokens {

inline constexpr int FirstId = 108;
inline constexpr int LastId = 408;

/*!
 * The colour-set name behind \a token, for example "button-primary-text".
 * Empty for ColorToken::None and for a number outside FirstId..LastId. Never allocates.
 */
QString name(ColorToken token);

} // namespace ColorTokens
