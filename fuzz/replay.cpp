// Runs a fuzzer's seeds without libFuzzer: each file of the folder that the command line names, once.

#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const quint8* data, size_t size);

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    int count = 0;
    QDirIterator files(QFile::decodeName(argv[1]), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "can't read %s\n", qPrintable(file.fileName()));
            return 1;
        }
        std::printf("%s\n", qPrintable(file.fileName())); // the last one is to blame for an abort
        std::fflush(stdout);
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const quint8*>(bytes.constData()),
                               static_cast<size_t>(bytes.size()));
        ++count;
    }
    std::printf("%d seeds\n", count);
    return count > 0 ? 0 : 1;
}
