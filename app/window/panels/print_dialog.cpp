#include "app/window/panels/print_dialog.h"

#include <QApplication>
#include <QDir>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace window {

namespace {

std::shared_ptr<QPrinter> printerFor(const QPageLayout &page)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setCreator(QStringLiteral("Quorlin"));
    printer->setDocName(QStringLiteral("Quorlin")); // the title that print queues show
    // Without a printer the dialog prints to a file, and requires a file name.
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        printer->setOutputFileName(QDir::homePath() + QStringLiteral("/Quorlin.pdf"));
    printer->setPageLayout(page);
    printer->setFullPage(true);
    return printer;
}

/** What the code that draws the pages has to do: a print system that makes copies itself is only told how many. */
platform::PrintPages chosenPages(const QPrinter &printer)
{
    platform::PrintPages pages;
    if (printer.printRange() == QPrinter::PageRange) {
        pages.from = printer.fromPage();
        pages.to = printer.toPage();
    }
    pages.copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    pages.areCollated = printer.collateCopies();
    pages.isBackwards = printer.pageOrder() == QPrinter::LastPageFirst;
    return pages;
}

} // namespace

platform::PanelAnswer runPrintDialog(const platform::PanelRequest &request)
{
    const std::shared_ptr<QPrinter> printer = printerFor(request.page);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    if (request.pageCount > 1) {
        dialog.setOption(QAbstractPrintDialog::PrintPageRange);
        dialog.setMinMax(1, request.pageCount);
    }
    if (dialog.exec() != QDialog::Accepted)
        return {};
    // The dialog may have restored margins that suit the printer.
    printer->setFullPage(true);
    printer->setPageMargins(request.page.margins(), request.page.units());
    platform::PanelAnswer answer;
    answer.accepted = true;
    answer.printer = printer;
    answer.pages = chosenPages(*printer);
    return answer;
}

PrinterChoice chosenPrinter(const platform::PanelAnswer &answer)
{
    const auto *printer = dynamic_cast<const QPrinter *>(answer.printer.get());
    if (!printer)
        return {answer.paths.value(0), {}};
    if (!printer->outputFileName().isEmpty())
        return {printer->outputFileName(), {}};
    PrinterChoice choice;
    choice.arguments = {QStringLiteral("-d"), printer->printerName(), QStringLiteral("-t"), QStringLiteral("Quorlin")};
    const auto option = [&choice](const QString &words) { choice.arguments += {QStringLiteral("-o"), words}; };
    if (printer->supportsMultipleCopies() && printer->copyCount() > 1) {
        choice.arguments += {QStringLiteral("-n"), QString::number(printer->copyCount())};
        option(printer->collateCopies() ? QStringLiteral("collate=true") : QStringLiteral("collate=false"));
    }
    if (printer->duplex() == QPrinter::DuplexLongSide || printer->duplex() == QPrinter::DuplexShortSide)
        option(printer->duplex() == QPrinter::DuplexLongSide ? QStringLiteral("sides=two-sided-long-edge")
                                                             : QStringLiteral("sides=two-sided-short-edge"));
    if (printer->colorMode() == QPrinter::GrayScale)
        option(QStringLiteral("print-color-mode=monochrome"));
    // The pages already have the size of the paper.
    const QSizeF paper = printer->pageLayout().pageSize().size(QPageSize::Millimeter);
    option(QStringLiteral("media=Custom.%1x%2mm").arg(paper.width()).arg(paper.height()));
    option(QStringLiteral("print-scaling=none"));
    return choice;
}

void runPageSetup(QPageLayout &page)
{
    const std::shared_ptr<QPrinter> printer = printerFor(page);
    QPageSetupDialog dialog(printer.get(), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return;
    page.setPageSize(printer->pageLayout().pageSize());
    page.setOrientation(printer->pageLayout().orientation());
}

} // namespace window
