// The one way from a flow to what a batch applies to each photo.
#pragma once

#include "batchoperations.h"

#include <QString>
#include <QStringList>

// The active operations of a flow text in flow order, each with the parameter text its node
// in the window would write after reading the flow: keys in table order, a missing key at its
// default, a number outside its range clamped, Resize's mode before its sizes. Names that are
// not operations are skipped. ok is false for text that is not a flow (not well-formed XML).
// dropped receives a line for each thing the flow holds that could not be taken as it is: an
// operation that does not exist, a value that cannot be read (a logo that does not decode).
BatchOperations batchOperationsFromFlow(const QString& flowText, bool* ok = nullptr,
                                        QStringList* dropped = nullptr);
