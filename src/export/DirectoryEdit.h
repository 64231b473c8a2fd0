#pragma once

#include <QtWidgets/QWidget>

class QLineEdit;

namespace TARN {

/// An output folder: typed, or chosen in a folder chooser.
class DirectoryEdit : public QWidget
{
    Q_OBJECT

public:
    /// \p title of the folder chooser.
    explicit DirectoryEdit(const QString& title, QWidget* parent = nullptr);

    void setPath(const std::string& path);

Q_SIGNALS:
    void signalPath(const QString& path);

private Q_SLOTS:
    void slotPathSelect();

private:
    QString mTitle;
    QLineEdit* mEdit;
};

} // namespace TARN
