#include "tests/unit/ui/IniSamples.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QVector>

namespace IniSamples {

QVariantMap ReadBySettings(const QByteArray& ini)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.ini")));
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("no file for the test");
    }
    file.write(ini);
    file.close();
    QSettings settings(file.fileName(), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    QVariantMap values;
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys) {
        if (!key.isEmpty()) {
            values.insert(key, settings.value(key));
        }
    }
    return values;
}

QByteArray Random(QRandomGenerator& random)
{
    static const QVector<QByteArray> pieces{"@Rect(1 2 3 4)",
                                            "@Size(1 2)",
                                            "@",
                                            "@@",
                                            "\\x40",
                                            "\\100",
                                            "\\x40Rect(1 2 3 4)",
                                            "\\x10040Rect(1 2 3 4)",
                                            "\"",
                                            "\"",
                                            "\\",
                                            "\\\\",
                                            "\\t",
                                            "\\x20",
                                            "\\\"",
                                            ",",
                                            ",",
                                            " ",
                                            "\t",
                                            "\v",
                                            "\f",
                                            "\n",
                                            "\n",
                                            "\r\n",
                                            "\r",
                                            "\\\n",
                                            ";",
                                            "=",
                                            "=",
                                            "[",
                                            "]",
                                            "[g]\n",
                                            "\nb=",
                                            "a",
                                            "0",
                                            ")",
                                            "\xEF\xBB\xBF",
                                            "\xC3",
                                            "%",
                                            "/"};
    QByteArray ini = random.bounded(2) == 0 ? "[g]\na=" : "";
    for (int i = 1 + random.bounded(14); i > 0; --i) {
        ini += pieces.at(random.bounded(pieces.size()));
    }
    return ini;
}

} // namespace IniSamples
