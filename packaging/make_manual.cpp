// make_manual MARKDOWN PDF: sets the manual in type.

#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>
#include <QTextDocument>

#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
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

    QPdfWriter writer(argv[2]);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    writer.setTitle("Orvanta: user's manual");
    writer.setCreator("Orvanta");
    document.print(&writer);
    return QFile::exists(argv[2]) ? 0 : 1;
}
