#include "WarningRecorder.h"

#include <QtCore/QString>
#include <QtCore/QtGlobal>

namespace desktop_test {

namespace {

std::vector<std::string> recorded;
QtMessageHandler handlerBefore = nullptr;

// Everything else goes where it went before.
void Record(QtMsgType iType, const QMessageLogContext& iContext, const QString& iText) {
    if (iType == QtWarningMsg)
        recorded.push_back(iText.toStdString());
    else if (handlerBefore != nullptr)
        handlerBefore(iType, iContext, iText);
}

} // namespace

WarningRecorder::WarningRecorder() {
    recorded.clear();
    handlerBefore = qInstallMessageHandler(&Record);
}

WarningRecorder::~WarningRecorder() {
    qInstallMessageHandler(handlerBefore);
}

const std::vector<std::string>& WarningRecorder::Warnings() const {
    return recorded;
}

} // namespace desktop_test
