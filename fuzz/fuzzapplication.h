// What both fuzzers set up once before their first input.
#pragma once

#include <QGuiApplication>
#include <QTemporaryDir>

// A Qt application for a fuzzer, with a home of its own that is removed at exit: fontconfig's
// cache and anything Qt keeps go there, not to the user's.
inline void startFuzzApplication(char* program)
{
    static QTemporaryDir home;
    for (const char* variable :
         {"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt gets only the program name: libFuzzer's flags are not for it.
    static int qtArgc = 1;
    static char* qtArgv[] = {program, nullptr};
    // Never destroyed: at exit Qt's font caches go with their thread storage, before a static
    // application would, and what they held would look leaked.
    new QGuiApplication(qtArgc, qtArgv);
}
