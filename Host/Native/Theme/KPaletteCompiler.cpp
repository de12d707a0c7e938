// Build tool: turns palette files into the constant table that is compiled into the library.

#include "KPaletteReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace {
int fail(const QString &message)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(message));
    return 1;
}

void write(QTextStream &out, const KPaletteTable &table)
{
    out << "// Generated from the palette files.\n\n#include \"KPaletteData.h\"\n\nnamespace {\n"
        << "// clang-format off\nconstexpr KPaletteRow rows[] = {\n";
    for (auto set = table.front().begin(); set != table.front().end(); ++set) {
        out << "    {\"" << set.key() << "\", {";
        for (const auto &theme : table) {
            out << '{';
            for (const QRgb color : theme.value(set.key()))
                out << "0x" << QString::number(color, 16).rightJustified(8, QLatin1Char('0')) << ", ";
            out << "}, ";
        }
        out << "}},\n";
    }
    out << "};\n// clang-format on\n}\n\nstd::span<const KPaletteRow> builtInPalette()\n{\n    return rows;\n}\n";
}
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList files = app.arguments().mid(1);
    if (files.size() < 2)
        return fail(QStringLiteral("usage: korvu-palette-compiler OUTPUT PALETTE..."));
    const QString output = files.takeFirst();

    KPaletteReader reader;
    for (const QString &file : std::as_const(files))
        reader.addFile(file);
    const KPaletteTable table = reader.resolve();
    if (!reader.warnings().isEmpty())
        return fail(reader.warnings().join(QLatin1Char('\n')));

    QFile file(output);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return fail(QStringLiteral("%1: %2").arg(output, file.errorString()));
    QTextStream out(&file);
    write(out, table);
    out.flush();
    if (!file.flush())
        return fail(QStringLiteral("%1: %2").arg(output, file.errorString()));
    return 0;
}
