#include "operationcatalogue.h"

#include "geometric.h"
#include "operations.h"
#include "watermarkoperation.h"

namespace {

struct Entry
{
    const char* name;
    QImage (*apply)(QImage image, const QString& parametersText);
    QSize (*resultSize)(const QString& parametersText, const QSize& size);
    void (*read)(const QDomElement& parameters, QDomElement& written, QDomDocument& document);
};

// The values start at zero, are taken from the text, and the operation's one mapping runs on
// the calling thread.
template <typename Op> QImage applyHeadless(QImage image, const QString& parametersText)
{
    // The kernels read 32-bit words; a photo of another depth is widened first.
    if (image.depth() != 32)
        image = image.convertToFormat(QImage::Format_ARGB32);
    return Op::run(image, Op::table().parse(parametersText));
}

// The operations that change the pixel count; every other keeps the size.
template <typename Values> QSize sizeAfter(const Values& /*values*/, const QSize& size)
{
    return size;
}

QSize sizeAfter(const FRMValues& values, const QSize& size)
{
    return OrkGraphX::framedSize(size, values.width);
}

QSize sizeAfter(const RSZValues& values, const QSize& size)
{
    return OrkGraphX::resizedSize(size, values.width, values.height, values.mode, false);
}

template <typename Op> QSize resultSizeOf(const QString& parametersText, const QSize& size)
{
    return sizeAfter(Op::table().parse(parametersText), size);
}

template <typename Op>
void readLikeNode(const QDomElement& parameters, QDomElement& written, QDomDocument& document)
{
    typename Op::Values values = Op::table().defaults();
    Op::table().load(parameters, values);
    Op::table().save(values, written, document);
}

template <typename Op> constexpr Entry entry()
{
    return {Op::Name, &applyHeadless<Op>, &resultSizeOf<Op>, &readLikeNode<Op>};
}

// The factory's order.
const Entry entries[] = {
    entry<RGBOperation>(), entry<BCSOperation>(), entry<RTTOperation>(), entry<BLROperation>(),
    entry<INVOperation>(), entry<MRROperation>(), entry<GRSOperation>(), entry<WMROperation>(),
    entry<CRPOperation>(), entry<RSZOperation>(), entry<HSTOperation>(), entry<FRMOperation>(),
    entry<BINOperation>(), entry<UCSOperation>(),
};

const Entry* findEntry(const QString& name)
{
    for (const Entry& candidate : entries) {
        if (name == QLatin1String(candidate.name))
            return &candidate;
    }
    return nullptr;
}

} // namespace

QStringList operationNames()
{
    QStringList names;
    for (const Entry& candidate : entries)
        names << QLatin1String(candidate.name);
    return names;
}

QImage applyOperation(const QString& name, const QImage& image, const QString& parametersText)
{
    const Entry* found = findEntry(name);
    return found ? found->apply(image, parametersText) : image;
}

QSize operationResultSize(const QString& name, const QString& parametersText, const QSize& size)
{
    const Entry* found = findEntry(name);
    return found ? found->resultSize(parametersText, size) : size;
}

bool readOperation(const QString& name, const QDomElement& parameters, bool* active,
                   QString* parametersText)
{
    const Entry* found = findEntry(name);
    if (!found)
        return false;
    // A new node is active.
    *active = ParameterText::active(parameters, true);
    // A document made with a (empty) name is a real one: a default-constructed one is null.
    QDomDocument document(QStringLiteral(""));
    QDomElement written = ParameterText::newElement(document, *active);
    found->read(parameters, written, document);
    *parametersText = ParameterText::documentText(document, written);
    return true;
}

namespace ParameterText {

bool active(const QDomElement& parameters, bool current)
{
    for (QDomNode child = parameters.firstChild(); !child.isNull(); child = child.nextSibling()) {
        const QDomElement element = child.toElement();
        if (!element.isNull() && element.tagName() == QLatin1String("Active"))
            current = element.text().toLower() == QLatin1String("yes");
    }
    return current;
}

QDomElement newElement(QDomDocument& document, bool active)
{
    QDomElement parameters = document.createElement("Parameters");
    QDomElement flag = document.createElement("Active");
    flag.appendChild(document.createTextNode(active ? "yes" : "no"));
    parameters.appendChild(flag);
    return parameters;
}

QString documentText(QDomDocument& document, const QDomElement& parameters)
{
    document.appendChild(parameters);
    return document.toString(1);
}

} // namespace ParameterText
