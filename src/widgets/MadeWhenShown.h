#pragma once

#include <QtWidgets/QVBoxLayout>
#include <QtWidgets/QWidget>

#include <functional>

namespace TARN {

/// Takes the place of a view that is made when it is first shown: the start does not wait for it.
class MadeWhenShown : public QWidget
{
public:
    explicit MadeWhenShown(std::function<QWidget*()> make) : mMake(std::move(make))
    {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        if (const auto make = std::exchange(mMake, nullptr)) {
            QWidget* view = make();
            setFocusProxy(view);
            layout()->addWidget(view);
        }
        QWidget::showEvent(event);
    }

private:
    std::function<QWidget*()> mMake;
};

} // namespace TARN
