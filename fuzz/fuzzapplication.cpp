// The set-up both fuzzers share, done once before their first input: a Qt application with a
// home of its own that is removed at exit, so that fontconfig's cache and anything Qt keeps go
// there, not to the user's.
#include <QGuiApplication>
#include <QTemporaryDir>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** argv)
{
    static QTemporaryDir home;
    for (const char* variable :
         {"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt gets only the program name: libFuzzer's flags are not for it.
    static int qtArgc = 1;
    static char* qtArgv[] = {(*argv)[0], nullptr};
    // Never destroyed: at exit Qt's font caches go with their thread storage, before a static
    // application would, and what they held would look leaked.
    new QGuiApplication(qtArgc, qtArgv);
    return 0;
}
