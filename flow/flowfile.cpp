#include "flowfile.h"

#include "app.h"

#include <QCoreApplication>
#include <QDir>

namespace FlowFile {

QString flowsFolder()
{
    const QString folder =
        QDir::homePath() + "/" + QCoreApplication::applicationName() + "/" + "Flows/";
    QDir().mkpath(folder);
    return folder;
}

bool installSampleFlow()
{
    return OrkWidgets::App::copyFile(":/sample.flow", flowsFolder(), "sample.flow");
}

} // namespace FlowFile
