#pragma once

#include <QtCore/QString>
#include <QtGui/QTextDocument>

namespace TARN {

/// A tool tip that shows a text as it stands: names of files and engines may look like markup.
inline QString plainTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace TARN
