#include "textesqt.h"

namespace carnet {

QString qt(std::string_view texte) {
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}

std::string utf8(const QString& texte) {
    return texte.toStdString();
}

QString compte(std::size_t nombre, const QString& un, const QString& plusieurs) {
    const QLocale francais(QLocale::French, QLocale::France);
    return francais.toString(static_cast<qulonglong>(nombre)) + QChar(' ') +
           (nombre > 1 ? plusieurs : un);
}

}  // namespace carnet
