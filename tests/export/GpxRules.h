#pragma once

#include <QtCore/QString>

/// What of a document does not keep the public rules of GPX 1.1: elements and their order,
/// attributes, types and ranges, of the parts that we write. Empty where all of it does.
QString gpxFault(const QByteArray& document);
