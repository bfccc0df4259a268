#include "operationcatalogue.h"

#include "geometric.h"
#include "operations.h"
#include "watermarkoperation.h"

namespace {

struct Entry
{
    const char* name;
    PreparedOperation (*prepare)(const QString& name, const QString& parametersText,
                                 bool forPreview);
    QStringList (*read)(const QDomElement& parameters, QDomElement& written,
                        QDomDocument& document);
};

// The operations that change the size; every other keeps it.
template <typename Values> QSize sizeAfter(const Values& /*values*/, const QSize& size)
{
    return size;
}

QSize sizeAfter(const CRPValues& values, const QSize& size)
{
    return OrkGraphX::croppedSize(size, values.left, values.right, values.top, values.bottom);
}

QSize sizeAfter(const RTTValues& values, const QSize& size)
{
    return OrkGraphX::rotatedSize(size, values.angle);
}

QSize sizeAfter(const FRMValues& values, const QSize& size)
{
    return OrkGraphX::framedSize(size, values.width);
}

QSize sizeAfter(const RSZValues& values, const QSize& size)
{
    return RSZOperation::resultSize(values, size);
}

// Only Resize runs differently on the preview's working copy.
template <typename Values> void markPreview(Values& /*values*/, bool /*forPreview*/) {}

void markPreview(RSZValues& values, bool forPreview)
{
    values.previewMode = forPreview;
}

// The operations that draw something of the photo; every other is the same for all.
template <typename Values> const Values& forPhoto(const Values& values, const PhotoContext&)
{
    return values;
}

WMRValues forPhoto(const WMRValues& values, const PhotoContext& photo)
{
    return WMROperation::forPhoto(values, photo);
}

// The values start at zero and are taken from the text once; the operation's one mapping then
// runs on the calling thread, image after image.
template <typename Op>
PreparedOperation prepareHeadless(const QString& name, const QString& parametersText,
                                  bool forPreview)
{
    typename Op::Values values = Op::table().parse(parametersText);
    markPreview(values, forPreview);
    return {name,
            [values](QImage image, const PhotoContext& photo) {
                // The kernels read 32-bit words; a photo of another depth is widened first.
                if (image.depth() != 32)
                    image = image.convertToFormat(QImage::Format_ARGB32);
                return Op::run(std::move(image), forPhoto(values, photo));
            },
            [values](const QSize& size) { return sizeAfter(values, size); }};
}

template <typename Op>
QStringList readLikeNode(const QDomElement& parameters, QDomElement& written,
                         QDomDocument& document)
{
    typename Op::Values values = Op::table().defaults();
    const QStringList unread = Op::table().load(parameters, values);
    Op::table().save(values, written, document);
    return unread;
}

template <typename Op> constexpr Entry entry()
{
    return {Op::Name, &prepareHeadless<Op>, &readLikeNode<Op>};
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

PreparedOperation prepareOperation(const QString& name, const QString& parametersText,
                                   bool forPreview)
{
    const Entry* found = findEntry(name);
    if (found)
        return found->prepare(name, parametersText, forPreview);
    return {name, [](const QImage& image, const PhotoContext&) { return image; },
            [](const QSize& size) { return size; }};
}

QImage applyOperation(const QString& name, const QImage& image, const QString& parametersText)
{
    return prepareOperation(name, parametersText).apply(image, PhotoContext());
}

bool readOperation(const QString& name, const QDomElement& parameters, bool* active,
                   QString* parametersText, QStringList* unread)
{
    const Entry* found = findEntry(name);
    if (!found)
        return false;
    // A new node is active.
    *active = ParameterText::active(parameters, true);
    // A document made with a (empty) name is a real one: a default-constructed one is null.
    QDomDocument document(QStringLiteral(""));
    QDomElement written = ParameterText::newElement(document, *active);
    const QStringList keys = found->read(parameters, written, document);
    if (unread)
        *unread = keys;
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
