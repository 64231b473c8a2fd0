// What any program of this kind has to do: a window with an OpenGL widget, and nothing else.

#include "FirstPaint.h"

#include <QtOpenGLWidgets/QOpenGLWidget>
#include <QtWidgets/QMainWindow>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QOpenGLWidget);
    window.resize(1000, 800);
    window.show();
    const TARN::Bench::EndAfterFirstPaint end(window);
    return QApplication::exec();
}
