// make_manual MARKDOWN PDF: sets the manual in type. The same text gives the same bytes.

#include <QBuffer>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>
#include <QTextTable>

#include <cstdio>

namespace {

// The writer notes the moment, which is no part of the manual. Blanks in its place keep the file's own offsets
// true.
void blank_creation_date(QByteArray& pdf) {
    const QByteArray key = "/CreationDate (";
    const qsizetype begin = pdf.indexOf(key);
    const qsizetype end = begin < 0 ? -1 : pdf.indexOf(')', begin);
    for (qsizetype at = begin; at >= 0 && at <= end; ++at)
        pdf[at] = ' ';
}

void set_tables(QTextDocument& document) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(0.5);
        format.setBorderBrush(Qt::gray);
        format.setCellSpacing(0);
        format.setCellPadding(4);
        format.setHeaderRowCount(1); // again on each page
        table->setFormat(format);
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QHashSeed::setDeterministicGlobalSeed();
    QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("make_manual MARKDOWN PDF\n", stderr);
        return 2;
    }
    QFile source(argv[1]);
    if (!source.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s can't be read.\n", argv[1]);
        return 1;
    }
    QTextDocument document;
    document.setDefaultFont(QFont("DejaVu Sans", 10));
    document.setMarkdown(QString::fromUtf8(source.readAll()));
    set_tables(document);

    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF()); // the document has its own, of 20 mm
    writer.setTitle("Orvanta: user's manual");
    writer.setCreator("Orvanta");
    document.print(&writer);

    blank_creation_date(pdf);
    QFile target(argv[2]);
    if (!target.open(QIODevice::WriteOnly) || target.write(pdf) != pdf.size() || !target.flush()) {
        std::fprintf(stderr, "%s can't be written.\n", argv[2]);
        return 1;
    }
    return 0;
}
