// The common body of the nodes whose stored keys are a NodeKeys table. Node provides
//   static const Keys& keys();                        the key table
//   static QImage run(QImage image, const Values&);   the kernel call with its argument mapping
// and may hide currentValues() to add values that are not stored (the preview-mode flag).
#pragma once

#include "basenode.h"
#include "nodekeys.h"

#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

template <typename Node, typename Values> class KeyedNode : public BaseNode
{
public:
    using Keys = NodeKeys<Node, Values>;
    using BaseNode::BaseNode;

    void loadParameters(const QDomElement& parameters) override
    {
        Node::keys().load(self(), parameters);
    }

    void saveParameters(QDomElement& parameters, QDomDocument document) override
    {
        Node::keys().save(self(), parameters, document);
    }

    // The kernel runs on the global pool; the caller waits for it, so the call stays synchronous.
    void process(QImage& image) override
    {
        if (isActive())
            image = QtConcurrent::run(QThreadPool::globalInstance(), &Node::run, image,
                                      self().currentValues())
                        .result();
        updatePreview(image);
    }

    Values currentValues() const { return Node::keys().values(self()); }

    // The headless form: the values start at zero, are taken from the text, and the same
    // mapping as process runs on the calling thread. No widget is involved.
    static QImage applyParameters(QImage image, const QString& parametersText)
    {
        // The kernels read 32-bit words; a photo of another depth is widened first.
        if (image.depth() != 32)
            image = image.convertToFormat(QImage::Format_ARGB32);
        return Node::run(image, Node::keys().parse(parametersText));
    }

private:
    Node& self() { return static_cast<Node&>(*this); }
    const Node& self() const { return static_cast<const Node&>(*this); }
};
