#pragma once

#include <QtGui/QIcon>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>

namespace TARN {

/// An icon of the program that is read when it is first painted: most stand in menus and in views
/// that nobody has opened yet.
class LateIcon : public QIconEngine
{
public:
    explicit LateIcon(const QString& file) : mFile(file) {}

    /// By its name, without folder and ending.
    static QIcon of(const QString& name)
    {
        return QIcon(new LateIcon(QString(":/icons/%1.svg").arg(name)));
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1.0, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }
    QIconEngine* clone() const override { return new LateIcon(mFile); }

private:
    const QIcon& icon()
    {
        if (mIcon.isNull()) {
            mIcon = QIcon(mFile);
        }
        return mIcon;
    }

    QString mFile;
    QIcon mIcon; ///< null until it is needed
};

} // namespace TARN
