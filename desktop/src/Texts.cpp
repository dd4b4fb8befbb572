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

QString OnOneLine(const QString& iText, qsizetype iLongest) {
    QString line = Shortened(iText, iLongest);
    line.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar& character : line) {
        const bool isBreak = character == QLatin1Char('\n') || character == QLatin1Char('\r') ||
                             character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if (isBreak)
            character = QChar(0x21B5);
        else if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return line;
}

QString Shortened(const QString& iText, qsizetype iCount) {
    if (iText.size() <= iCount)
        return iText;
    const bool splitsCharacter = iCount > 0 && iText.at(iCount - 1).isHighSurrogate();
    return iText.left(splitsCharacter ? iCount - 1 : iCount) + QChar(0x2026);
}

QString AsPlainHelp(const QString& iText) {
    if (!Qt::mightBeRichText(iText))
        return iText;
    return QStringLiteral("<span>%1</span>").arg(iText.toHtmlEscaped());
}

QString AsWrappedHelp(const QString& iText) {
    return QStringLiteral("<div style=\"white-space: pre-wrap\">%1</div>").arg(iText.toHtmlEscaped());
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
