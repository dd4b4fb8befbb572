#include "Texts.h"

#include <QtGui/QTextDocument>

namespace desktop {

QString ToQt(const CATUnicodeString& iText) {
    return QString::fromUtf8(iText.ConvertToUTF8(), static_cast<qsizetype>(iText.GetLengthInByte()));
}

QString ToQt(const CATString& iText) {
    return QString::fromUtf8(iText.ConvertToChar());
}

QString ToQt(const std::string& iText) {
    return QString::fromStdString(iText);
}

std::string ToHost(const QString& iText) {
    return iText.toStdString();
}

QString AsPlainHelp(const QString& iText) {
    if (!Qt::mightBeRichText(iText))
        return iText;
    return QStringLiteral("<span>%1</span>").arg(iText.toHtmlEscaped());
}

QString WithoutMnemonic(const QString& iText) {
    return QString(iText).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString WithMnemonic(const QString& iText, int iPosition) {
    if (iPosition < 0 || iPosition >= iText.size())
        return WithoutMnemonic(iText);
    return WithoutMnemonic(iText.left(iPosition)) + QLatin1Char('&') + WithoutMnemonic(iText.mid(iPosition));
}

} // namespace desktop
