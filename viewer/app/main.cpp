// The viewer's program: command line, then everything else in Viewer.

#include "viewer/app/EndSignals.h"
#include "viewer/app/Options.h"
#include "viewer/app/Viewer.h"
#include "viewer/cameras/CheckedJson.h"
#include "viewer/console/PageDriver.h"

#include "livecontrol/foundation/UTL_OpenGL.h"

#include <QApplication>

#include <cstdio>

namespace {

constexpr int kWrongInput = 2;

int tell(FILE* stream, const QString& text, int code) {
    std::fprintf(stream, "%s\n", qUtf8Printable(text.trimmed()));
    return code;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("zelviewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0.0"));
    // Before the application is made: what is wrong is printed without a display, and Qt reads the scale from
    // here.
    const OptionsResult asked = [&] {
        const QCoreApplication console(argc, argv); // help and version ask for one
        return readOptions(QCoreApplication::arguments());
    }();
    if (!asked.options) {
        return tell(asked.exitCode == 0 ? stdout : stderr, asked.text, asked.exitCode);
    }
    if (asked.options->scale > 0) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(asked.options->scale));
    }
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    int ownArguments = 1; // Qt takes --style for its own
    QApplication app(ownArguments, argv);
    if (!hasOpenGL()) {
        tell(stderr, QStringLiteral("This screen has no OpenGL: the images are not drawn."), 0);
    }
    try {
        Viewer viewer(*asked.options);
        const EndSignals ending([&viewer] { viewer.end(); });
        viewer.start();
        return QApplication::exec();
    } catch (const RigFileError& error) {
        return tell(stderr, QString::fromStdString(error.what()), kWrongInput);
    } catch (const ConsoleError& error) {
        return tell(stderr, QString::fromStdString(error.what()), kWrongInput);
    } catch (const std::exception& error) {
        return tell(stderr, QStringLiteral("The program can't start: ") + QString::fromUtf8(error.what()),
                    kWrongInput);
    }
}
