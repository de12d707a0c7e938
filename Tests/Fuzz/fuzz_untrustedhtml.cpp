#include "UntrustedHtmlOracle.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString html = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString fault = UntrustedHtmlOracle::fault(html);
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\nof %s\n", qPrintable(fault), qPrintable(html));
        std::abort();
    }
    return 0;
}
