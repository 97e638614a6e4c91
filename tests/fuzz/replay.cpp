// Gives the kept corpus of a fuzz target to it once more: what was found stays found.

#include <QDirIterator>
#include <QFile>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int, char **argv)
{
    int count = 0;
    QDirIterator files(QString::fromLocal8Bit(argv[1]), QDir::Files);
    for (; files.hasNext(); ++count) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return 2;
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()),
                               std::size_t(input.size()));
    }
    return count > 0 ? 0 : 2;
}
