// Flow texts and file helpers shared by the flow tests.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

namespace FlowTest {

// An "Operation" whose parameters hold only "Active".
inline QString operation(const QString& name, const QString& index, const QString& active = "yes")
{
    return QString(R"(<Operation name="%1" index="%2"><Parameters><Active>%3</Active>)"
                   "</Parameters></Operation>")
        .arg(name, index, active);
}

// A flow of the named nodes, all active, at the indices 0, 1, 2, ...
inline QString flowOfNames(const QStringList& names)
{
    QString text = "<OperationsFlow>";
    for (int i = 0; i < names.size(); ++i)
        text += operation(names.at(i), QString::number(i));
    return text + "</OperationsFlow>";
}

inline QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace FlowTest
