#pragma once

#include "export/ExportOptions.h"
#include "export/Exporter.h"

#include <memory>

namespace TARN {

/// How the window offers an export: asks for its options, names its failure.
class ExportFace
{
public:
    virtual ~ExportFace() = default;

    /// Asks how to export what is shown. \p preset are the range marked in the graph, all of it
    /// when nothing is marked, and the current time. Null when the user changed their mind.
    virtual std::shared_ptr<Exporter> ask(const ExportInput& shown,
                                          const ExportOptions& preset) = 0;

    /// Title and text of the box that tells of a failure.
    struct Words
    {
        QString title;
        QString failure;
    };
    virtual Words words() const = 0;

    /// The file is there.
    virtual void written(const QString& /*path*/) {}

protected:
    /// Of the first file, without folder and extensions; for the name of what is written.
    static std::string recordingName(const ExportInput& shown)
    {
        const QString first = shown.flight->record()->integrity().files.front().info.fileName;
        return first.section('/', -1).section('.', 0, 0).toStdString();
    }
};

} // namespace TARN
