#pragma once

#include "export/ExportOptions.h"

namespace TARN {

/// What the report is told. Its kind follows from the name of the file.
struct ReportOptions : ExportOptions
{
    enum Paper : int
    {
        A4,
        Letter
    };

    Paper paper = A4;
    bool isPdf = false; ///< proposed as kind
    bool opens = true;  ///< shown when it is written

    // The user's last choices.
    void load(const Property& settings);
    void store(Property& settings) const;
};

} // namespace TARN
