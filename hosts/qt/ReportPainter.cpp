#include "qt/ReportPainter.h"

#include "qt/Colors.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <QTransform>

#include <algorithm>

namespace k7deval::qt
{

namespace
{

// Fonts have whole sizes here, so texts are set large and drawn smaller.
constexpr int kSetSize = 200;

/// The edges of lines are as the PDF file has them.
QPen penOf(const QColor& color)
{
    return {color, ReportLine::kThickness, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

QRectF boxOf(const ReportRectangle& rectangle, double pageHeight)
{
    return QRectF(rectangle.X(), pageHeight - rectangle.Y(), rectangle.Width(), -rectangle.Height())
        .normalized();
}

QLineF lineOf(const ReportLine& line, double pageHeight)
{
    return {line.X1(), pageHeight - line.Y1(), line.X2(), pageHeight - line.Y2()};
}

/// From a text as it reads, from 0 on and y downward, to the page. `above` is how far its 0 lies
/// above its lower edge.
QTransform placeOf(const ReportTextItem& text, double above, double pageHeight)
{
    if (text.readsUpward())
        return QTransform::fromTranslate(text.X() - above, pageHeight - text.Y()).rotate(-90);
    return QTransform::fromTranslate(text.X(), pageHeight - text.Y() - above);
}

QRectF boxOf(const ReportTextItem& text, double pageHeight)
{
    return placeOf(text, 0, pageHeight)
        .mapRect(QRectF(0, -text.Height(), text.Width(), text.Height()));
}

/// The faces that the PDF file takes, or the nearest: those for texts beyond Windows-1252 first
/// where it has such a text.
QStringList familiesOf(const TextLayout& layout)
{
    const bool isBeyond = std::any_of(layout.runs.begin(), layout.runs.end(),
                                      [](const TextRun& run) { return run.face != nullptr; });
    QStringList families = {"Helvetica", "Liberation Sans", "Nimbus Sans", "Arial"};
    if (isBeyond)
        families.prepend("DejaVu Sans");
    else
        families.append("DejaVu Sans");
    return families;
}

/// Without pairs drawn closer together: the PDF file knows none.
QFont fontOf(const ReportTextItem& text, const TextLayout& layout)
{
    const ReportFace& face = ReportFace::ofCode(text.Font());
    QFont font;
    font.setFamilies(familiesOf(layout));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(kSetSize);
    font.setBold(face.isBold);
    font.setItalic(face.isSlanted);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// What the faces of the report draw, which may be the code of a character that none of them has.
QString shownText(const TextLayout& layout)
{
    QString shown;
    for (const TextRun& run : layout.runs)
        shown +=
            QString::fromUcs4(run.characters.data(), static_cast<qsizetype>(run.characters.size()));
    return shown;
}

void drawRectangle(QPainter& painter, const ReportRectangle& rectangle, double pageHeight)
{
    painter.setBrush(plainColor(static_cast<screen::Color>(rectangle.FillColor())));
    painter.setPen(penOf(plainColor(static_cast<screen::Color>(rectangle.LineColor()))));
    painter.drawRect(boxOf(rectangle, pageHeight));
}

void drawLine(QPainter& painter, const ReportLine& line, double pageHeight)
{
    QPen pen = penOf(Qt::black);
    // A pattern counts in widths of its pen.
    if (line.isDashed())
        pen.setDashPattern({ReportLine::kDashDrawn / ReportLine::kThickness,
                            ReportLine::kDashLeftOut / ReportLine::kThickness});
    painter.setPen(pen);
    painter.drawLine(lineOf(line, pageHeight));
}

void drawText(QPainter& painter, const ReportTextItem& text, double pageHeight)
{
    const TextLayout layout = text.layout();
    const QString shown = shownText(layout);
    const QFont font = fontOf(text, layout);
    const double advance = QFontMetricsF(font).horizontalAdvance(shown);
    if (shown.isEmpty() || advance <= 0)
        return;
    painter.save();
    painter.setTransform(placeOf(text, layout.baseLine(text.Size()), pageHeight), true);
    painter.scale(text.Width() / advance, static_cast<double>(text.Size()) / kSetSize);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(), shown);
    painter.restore();
}

} // namespace

void drawPage(QPainter& painter, const ReportPage& page)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    for (const ReportRectangle& rectangle : page.Rectangles())
        drawRectangle(painter, rectangle, page.Height());
    for (const ReportLine& line : page.Lines())
        drawLine(painter, line, page.Height());
    for (const ReportTextItem& text : page.TextItems())
        drawText(painter, text, page.Height());
    painter.restore();
}

QRectF contentOf(const ReportPage& page)
{
    constexpr double kHalf = ReportLine::kThickness / 2;
    const auto withEdge = [](const QRectF& box) {
        return box.normalized().adjusted(-kHalf, -kHalf, kHalf, kHalf);
    };
    QRectF content;
    for (const ReportRectangle& rectangle : page.Rectangles())
        content |= withEdge(boxOf(rectangle, page.Height()));
    for (const ReportLine& line : page.Lines()) {
        const QLineF drawn = lineOf(line, page.Height());
        content |= withEdge({drawn.p1(), drawn.p2()});
    }
    for (const ReportTextItem& text : page.TextItems())
        content |= boxOf(text, page.Height());
    return content;
}

} // namespace k7deval::qt
