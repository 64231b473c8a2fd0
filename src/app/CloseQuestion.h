#pragma once

class QWidget;

namespace TARN {

/// What is to become of an export that runs when the window is to close.
enum class OnClose
{
    Wait,
    Stop,
    Stay ///< the window stays open
};

OnClose askOnClose(QWidget& parent);

} // namespace TARN
