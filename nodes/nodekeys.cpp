#include "nodekeys.h"

namespace KeyText {

QString write(int value)
{
    return QString::number(value, 10);
}

QString write(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString write(const QColor& color)
{
    return color.name();
}

QString write(const QString& text)
{
    return text;
}

bool read(const QString& text, int& value)
{
    bool ok = false;
    const int number = text.toInt(&ok, 10);
    if (ok)
        value = number;
    return ok;
}

bool read(const QString& text, bool& value)
{
    value = text.toLower() == QLatin1String("yes");
    return true;
}

bool read(const QString& text, QColor& color)
{
    color = QColor(text);
    return true;
}

bool read(const QString& text, QString& value)
{
    value = text;
    return true;
}

} // namespace KeyText
