#pragma once

#include "output/print_job.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace velmora::test
{

/// A word of a page with its box in twips from the corner of the paper.
struct PdfWord {
    QString text;
    int page = 0;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// A PDF file as other programs read it.
class PdfFile
{
public:
    explicit PdfFile(QString file) : m_file(std::move(file)) {}

    /// The lines of a page, from 1 on, or of all pages, with the runs of blanks of each made one.
    [[nodiscard]] QStringList lines(int page = 0) const
    {
        QStringList options{QStringLiteral("-layout")};
        const QString number = QString::number(page);
        if (page > 0) options << QStringLiteral("-f") << number << QStringLiteral("-l") << number;
        QStringList simplified;
        const QString text = poppler(QStringLiteral("pdftotext"), options << m_file << QStringLiteral("-"));
        for (const QString &line : text.split(QRegularExpression(QStringLiteral("[\n\f]"))))
            if (!line.trimmed().isEmpty()) simplified << line.simplified();
        return simplified;
    }

    [[nodiscard]] std::vector<PdfWord> words() const
    {
        static const QRegularExpression parts(
            QStringLiteral("<page |<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" "
                           "yMax=\"([\\d.]+)\">([^<]*)</word>"));
        const QString boxes =
            poppler(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), m_file, QStringLiteral("-")});
        std::vector<PdfWord> found;
        int page = 0;
        for (auto match = parts.globalMatch(boxes); match.hasNext();) {
            const auto one = match.next();
            if (one.captured(5).isEmpty()) {
                ++page;
                continue;
            }
            const auto twips = [&](int group) { return one.captured(group).toDouble() * 20; };
            found.push_back({one.captured(5), page, twips(1), twips(2), twips(3), twips(4)});
        }
        return found;
    }

    [[nodiscard]] int pages() const
    {
        const QString info = poppler(QStringLiteral("pdfinfo"), {m_file});
        return QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(info).captured(1).toInt();
    }
    [[nodiscard]] QString pageSize() const
    {
        const QString info = poppler(QStringLiteral("pdfinfo"), {m_file});
        return QRegularExpression(QStringLiteral("Page size:\\s+(.*)")).match(info).captured(1);
    }
    /// The lines about the fonts.
    [[nodiscard]] QStringList fonts() const
    {
        return poppler(QStringLiteral("pdffonts"), {m_file})
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts)
            .mid(2);
    }

private:
    static QString poppler(const QString &tool, const QStringList &words)
    {
        QProcess process;
        process.start(tool, words);
        EXPECT_TRUE(process.waitForFinished(30000)) << tool.toStdString();
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    QString m_file;
};

/// A print written as a PDF into a folder of its own, at a quarter past eight of 15 June 2026.
class PrintedPdf : public PdfFile
{
public:
    explicit PrintedPdf(const Impression &impression, const QString &police = {})
        : PrintedPdf(std::make_shared<QTemporaryDir>(), impression, police)
    {
    }

private:
    PrintedPdf(std::shared_ptr<QTemporaryDir> folder, const Impression &impression, const QString &police)
        : PdfFile(folder->filePath(QStringLiteral("print.pdf"))), m_folder(std::move(folder))
    {
        const QDateTime moment(QDate(2026, 6, 15), QTime(8, 15));
        EXPECT_TRUE(ecritPdf(m_folder->filePath(QStringLiteral("print.pdf")), impression, police, moment));
    }

    std::shared_ptr<QTemporaryDir> m_folder;
};

/// Lines as one text, which a failing test shows readably.
inline std::string joined(const QStringList &lines)
{
    return lines.join(QLatin1Char('\n')).toStdString();
}

/// Words that lie on each other or outside the paper's printable area, for a page of `width` twips.
inline QStringList badlyPlaced(const PdfFile &pdf, double width, double height)
{
    constexpr double margin = 330;
    constexpr double tolerance = 8;
    QStringList faults;
    const std::vector<PdfWord> words = pdf.words();
    for (std::size_t i = 0; i < words.size(); ++i) {
        const PdfWord &one = words[i];
        if (one.left < margin || one.right > width - margin || one.top < margin ||
            one.bottom > height - margin)
            faults << QStringLiteral("%1 lies outside page %2").arg(one.text).arg(one.page);
        for (std::size_t j = i + 1; j < words.size() && words[j].page == one.page; ++j) {
            const PdfWord &two = words[j];
            const double wide = std::min(one.right, two.right) - std::max(one.left, two.left);
            const double high = std::min(one.bottom, two.bottom) - std::max(one.top, two.top);
            // The boxes of neighbouring lines touch: their letters don't.
            if (wide > tolerance && high > (one.bottom - one.top) / 3)
                faults << QStringLiteral("%1 lies on %2 on page %3").arg(one.text, two.text).arg(one.page);
        }
    }
    return faults;
}

} // namespace velmora::test
