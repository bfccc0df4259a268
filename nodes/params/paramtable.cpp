#include "paramtable.h"

#include "direction.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

namespace {

// The families a font picker lists, in its order.
QStringList pickerFamilies()
{
    QFontDatabase database;
    QStringList families = database.families();
    families.erase(std::remove_if(families.begin(), families.end(),
                                  [&database](const QString& family) {
                                      return database.isPrivateFamily(family);
                                  }),
                   families.end());
    return families;
}

// The row a font picker selects for font: the last listed family that the matcher's choice
// names (a foundry in brackets aside), else the first row.
int pickerRow(const QStringList& families, const QFont& font)
{
    const QString matched = QFontInfo(font).family();
    int row = 0;
    for (int i = 0; i < families.size(); ++i) {
        if (families.at(i) == matched || families.at(i).startsWith(matched + " ["))
            row = i;
    }
    return row;
}

QString numberText(const QVariant& value)
{
    return QString::number(value.toInt(), 10);
}

bool readNumber(const QString& text, QVariant& value)
{
    bool ok = false;
    const int number = text.toInt(&ok, 10);
    if (ok)
        value = number;
    return ok;
}

} // namespace

namespace ParamRules {

ParamText textFor(ParamKind kind)
{
    switch (kind) {
    case ParamKind::Toggle:
        return {[](const QVariant& value) {
                    return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
                },
                [](const QString& text, QVariant& value) {
                    value = text.toLower() == QLatin1String("yes");
                    return true;
                }};
    case ParamKind::Colour:
        return {[](const QVariant& value) { return value.value<QColor>().name(); },
                [](const QString& text, QVariant& value) {
                    value = QColor(text);
                    return true;
                }};
    case ParamKind::Text:
        return {[](const QVariant& value) { return value.toString(); },
                [](const QString& text, QVariant& value) {
                    value = text;
                    return true;
                }};
    case ParamKind::Direction:
        return {[](const QVariant& value) { return directionName(value.toInt()); },
                [](const QString& text, QVariant& value) {
                    const int direction = directionFromName(text);
                    if (direction >= 0)
                        value = direction;
                    return direction >= 0;
                }};
    case ParamKind::Cells:
        return {[](const QVariant& value) { return directionNames(value.toInt()); },
                [](const QString& text, QVariant& value) {
                    const int cells = directionsFromNames(text);
                    if (cells >= 0)
                        value = cells;
                    return cells >= 0;
                }};
    case ParamKind::Font:
        // Only the family travels: a font of that family with default size and weight.
        return {[](const QVariant& value) { return value.value<QFont>().family(); },
                [](const QString& text, QVariant& value) {
                    value = QFont(text);
                    return true;
                }};
    case ParamKind::Slider:
    case ParamKind::SpinBox:
    case ParamKind::Choice:
    case ParamKind::Plain:
        break;
    }
    return {numberText, readNumber};
}

QVariant clamped(ParamKind kind, const QVariant& value, const QVariant& before,
                 const ParamRange& range, int choices)
{
    switch (kind) {
    case ParamKind::Slider:
    case ParamKind::SpinBox:
        return qBound(range.minimum, value.toInt(), range.maximum);
    case ParamKind::Choice:
        // An index the combo does not have clears the selection.
        return value.toInt() >= 0 && value.toInt() < choices ? value.toInt() : -1;
    case ParamKind::Text:
        return value.toString().left(maxTextLength);
    case ParamKind::Font: {
        // Given the family it shows, the picker stays as it is; given another, it lists the
        // installed families anew and takes the row the matcher picks for the font.
        const QStringList families = pickerFamilies();
        const QFont font = value.value<QFont>();
        if (families.isEmpty() || font.family() == before.value<QFont>().family())
            return before;
        return QFont(families.at(pickerRow(families, font)));
    }
    case ParamKind::Toggle:
    case ParamKind::Colour:
    case ParamKind::Direction:
    case ParamKind::Cells:
    case ParamKind::Plain:
        break;
    }
    return value;
}

QString defaultFontFamily()
{
    return QGuiApplication::font().family();
}

} // namespace ParamRules
