#include "frontend/qt/Text.h"

namespace qt {

QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString EscapeMnemonics(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

QString WithoutMnemonicMark(QString text) {
    for (qsizetype mark = text.indexOf(u'&'); mark >= 0; mark = text.indexOf(u'&', mark + 1)) {
        text.remove(mark, 1);
    }
    return text;
}

QString ToTitle(std::string_view text) {
    return ToQt(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}
