#include "paper/attachment.h"

#include "program/report_engine.h"

// The library's own pointer type is on its way out; asking for the standard one silences its warning.
#define POINTERHOLDER_TRANSITION 4
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <exception>

namespace lodge {

std::string withAttachment(const std::string& pdf, const Attachment& attachment) try {
    QPDF document;
    document.setSuppressWarnings(true); // what is wrong comes as an exception
    document.processMemoryFile("return", pdf.data(), pdf.size());
    auto content = QPDFEFStreamObjectHelper::createEFStream(document, attachment.bytes);
    content.setSubtype(attachment.mimeType);
    auto file = QPDFFileSpecObjectHelper::createFileSpec(document, attachment.name, content);
    QPDFEmbeddedFileDocumentHelper(document).replaceEmbeddedFile(attachment.name, file);

    QPDFWriter writer(document);
    writer.setOutputMemory();
    writer.setObjectStreamMode(qpdf_o_generate);
    writer.setDeterministicID(true);
    writer.write();
    const auto written = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(written->getBuffer()), written->getSize()};
} catch (const std::exception& error) {
    throw ReportError(report_error::programFault, std::string("แนบข้อมูลในไฟล์ PDF ไม่ได้: ") + error.what());
}

} // namespace lodge
