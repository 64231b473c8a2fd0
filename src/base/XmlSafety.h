#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace TARN {

/// Why a document must not be given to the toolkit's tree builder, empty when nothing speaks
/// against it: it is no XML, or nested, expanded or loaded with attributes so much that building
/// or dropping the tree would exhaust the stack, the memory or the user's patience. The limits
/// are far from any file of ours.
QString xmlObjection(const QByteArray& content);

} // namespace TARN
