#pragma once

#include "report/ReportItems.h"

#include <memory>

namespace k7deval
{

/// A page of a report. It must be given its size before the document is saved.
class ReportPage
{
public:
    explicit ReportPage(const std::shared_ptr<const FontSet>& fonts) : textItems_(fonts) {}

    /// Points; 0 until set.
    [[nodiscard]] float Height() const { return height_; }
    /// 3 to 14400 points, what a PDF page can have; else error 5.
    void SetHeight(float points);
    [[nodiscard]] float Width() const { return width_; }
    /// 3 to 14400 points, what a PDF page can have; else error 5.
    void SetWidth(float points);

    [[nodiscard]] ReportTextItems& TextItems() { return textItems_; }
    [[nodiscard]] const ReportTextItems& TextItems() const { return textItems_; }
    [[nodiscard]] ReportLines& Lines() { return lines_; }
    [[nodiscard]] const ReportLines& Lines() const { return lines_; }
    [[nodiscard]] ReportRectangles& Rectangles() { return rectangles_; }
    [[nodiscard]] const ReportRectangles& Rectangles() const { return rectangles_; }

private:
    float height_ = 0;
    float width_ = 0;
    ReportTextItems textItems_;
    ReportLines lines_;
    ReportRectangles rectangles_;
};

class ReportPages : public ReportCollection<ReportPage>
{
public:
    explicit ReportPages(std::shared_ptr<const FontSet> fonts) : fonts_(std::move(fonts)) {}

    /// Appends a page. It has no size yet.
    ReportPage& Add() { return addItem(fonts_); }

private:
    std::shared_ptr<const FontSet> fonts_;
};

} // namespace k7deval
