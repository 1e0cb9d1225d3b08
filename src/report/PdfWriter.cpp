#include "report/PdfWriter.h"

#include "foundation/Error.h"
#include "report/CharacterCodes.h"
#include "report/PageContent.h"
#include "report/ReportFace.h"
#include "report/UsedFonts.h"

#include <hpdf.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <vector>

namespace k7deval
{

namespace
{

bool isPlainAscii(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

/// A PDF file in the making. The library below reports failures by null pointers and a number that
/// it keeps; here they become exceptions: error 5, or no memory.
class Pdf
{
public:
    Pdf();

    void setInformation(const char* key, const std::string& text);
    void addFonts(const UsedFonts& fonts);
    void addPage(const ReportPage& page, const std::string& content);
    [[nodiscard]] std::string bytes();

private:
    [[noreturn]] void fail() const;
    void require(HPDF_STATUS status) const;
    template <class Object> Object* made(Object* object) const;

    [[nodiscard]] HPDF_Dict dictionary() const;
    [[nodiscard]] HPDF_Dict stream(const std::string& content) const;
    [[nodiscard]] HPDF_Array array() const;
    void setName(HPDF_Dict target, const char* key, const std::string& name) const;
    void setNumber(HPDF_Dict target, const char* key, int number) const;
    void setObject(HPDF_Dict target, const char* key, void* object) const;
    void append(HPDF_Array target, void* object) const;

    [[nodiscard]] HPDF_Dict compositeFont(const EmbeddedFont& font, const std::string& name) const;
    [[nodiscard]] HPDF_Dict outlineFont(const EmbeddedFont& font, const std::string& name) const;
    [[nodiscard]] HPDF_Dict descriptor(const EmbeddedFont& font, const std::string& name) const;
    [[nodiscard]] HPDF_Dict identityOrdering() const;
    [[nodiscard]] HPDF_Array widths(const std::vector<int>& advances) const;

    struct Free {
        void operator()(HPDF_Doc document) const { HPDF_Free(document); }
    };

    std::unique_ptr<std::remove_pointer_t<HPDF_Doc>, Free> document_;
    HPDF_Dict fonts_ = nullptr; // Shared by all pages.
};

Pdf::Pdf() : document_(HPDF_New(nullptr, nullptr))
{
    if (!document_)
        throw std::bad_alloc();
    require(HPDF_SetCompressionMode(document_.get(), HPDF_COMP_ALL));
    fonts_ = dictionary();
}

void Pdf::fail() const
{
    if (HPDF_GetError(document_.get()) == HPDF_FAILD_TO_ALLOC_MEM)
        throw std::bad_alloc();
    throw Error(errors::kInvalidCall);
}

void Pdf::require(HPDF_STATUS status) const
{
    if (status != HPDF_OK)
        fail();
}

template <class Object> Object* Pdf::made(Object* object) const
{
    if (object == nullptr)
        fail();
    return object;
}

/// An object of its own, which others refer to.
HPDF_Dict Pdf::dictionary() const
{
    HPDF_Dict made = this->made(HPDF_Dict_New(document_->mmgr));
    require(HPDF_Xref_Add(document_->xref, made));
    return made;
}

HPDF_Dict Pdf::stream(const std::string& content) const
{
    HPDF_Dict made = this->made(HPDF_DictStream_New(document_->mmgr, document_->xref));
    made->filter = HPDF_STREAM_FILTER_FLATE_DECODE;
    require(HPDF_Stream_Write(made->stream, reinterpret_cast<const HPDF_BYTE*>(content.data()),
                              static_cast<HPDF_UINT>(content.size())));
    return made;
}

HPDF_Array Pdf::array() const
{
    return made(HPDF_Array_New(document_->mmgr));
}

void Pdf::setName(HPDF_Dict target, const char* key, const std::string& name) const
{
    require(HPDF_Dict_AddName(target, key, name.c_str()));
}

void Pdf::setNumber(HPDF_Dict target, const char* key, int number) const
{
    require(HPDF_Dict_AddNumber(target, key, number));
}

void Pdf::setObject(HPDF_Dict target, const char* key, void* object) const
{
    require(HPDF_Dict_Add(target, key, made(object)));
}

void Pdf::append(HPDF_Array target, void* object) const
{
    require(HPDF_Array_Add(target, made(object)));
}

// Plain ASCII stands as it is; anything else is UTF-16 with its mark, the only other form that
// readers understand here.
void Pdf::setInformation(const char* key, const std::string& text)
{
    if (text.empty())
        return;
    if (isPlainAscii(text)) {
        setObject(document_->info, key, HPDF_String_New(document_->mmgr, text.c_str(), nullptr));
        return;
    }
    const std::string byteOrderMark = "\xFE\xFF";
    std::string bytes = byteOrderMark + utf16BigEndian(charactersOf(text));
    setObject(document_->info, key,
              HPDF_Binary_New(document_->mmgr, reinterpret_cast<HPDF_BYTE*>(bytes.data()),
                              static_cast<HPDF_UINT>(bytes.size())));
}

void Pdf::addFonts(const UsedFonts& fonts)
{
    const std::string markOfPart = "AAAAAA+"; // Any six capitals say that the font is not whole.
    for (const UsedFont& font : fonts) {
        HPDF_Font object =
            font.embedded
                ? compositeFont(*font.embedded, markOfPart + font.embedded->face().name())
                : HPDF_GetFont(document_.get(), ReportFace::ofCode(font.fontCode).standardName,
                               "WinAnsiEncoding");
        setObject(fonts_, font.resourceName.c_str(), object);
    }
}

HPDF_Dict Pdf::compositeFont(const EmbeddedFont& font, const std::string& name) const
{
    HPDF_Dict composite = dictionary();
    setName(composite, "Type", "Font");
    setName(composite, "Subtype", "Type0");
    setName(composite, "BaseFont", name);
    setName(composite, "Encoding", "Identity-H");
    HPDF_Array descendants = array();
    setObject(composite, "DescendantFonts", descendants);
    append(descendants, outlineFont(font, name));
    setObject(composite, "ToUnicode", stream(font.toUnicode()));
    return composite;
}

HPDF_Dict Pdf::outlineFont(const EmbeddedFont& font, const std::string& name) const
{
    HPDF_Dict outline = dictionary();
    setName(outline, "Type", "Font");
    setName(outline, "Subtype", "CIDFontType2");
    setName(outline, "BaseFont", name);
    setObject(outline, "CIDSystemInfo", identityOrdering());
    setObject(outline, "FontDescriptor", descriptor(font, name));
    setObject(outline, "CIDToGIDMap", stream(font.glyphNumbers()));
    setNumber(outline, "DW", 0);
    setObject(outline, "W", widths(font.advances()));
    return outline;
}

HPDF_Dict Pdf::descriptor(const EmbeddedFont& font, const std::string& name) const
{
    constexpr int kSymbolic = 4; // The characters are not those of the standard Latin set.
    constexpr int kStem = 80;    // The face does not tell; readers use it only to replace a face.
    const TrueTypeFace& face = font.face();
    const FaceBox box = face.box();
    HPDF_Dict descriptor = dictionary();
    setName(descriptor, "Type", "FontDescriptor");
    setName(descriptor, "FontName", name);
    setNumber(descriptor, "Flags", kSymbolic);
    HPDF_Array corners = array();
    setObject(descriptor, "FontBBox", corners);
    for (const int corner : {box.left, box.bottom, box.right, box.top})
        require(HPDF_Array_AddNumber(corners, corner));
    require(HPDF_Dict_AddReal(descriptor, "ItalicAngle", face.italicAngle()));
    setNumber(descriptor, "Ascent", face.ascender());
    setNumber(descriptor, "Descent", face.descender());
    setNumber(descriptor, "CapHeight", face.capHeight());
    setNumber(descriptor, "StemV", kStem);
    const std::string content = font.fontFile();
    HPDF_Dict file = stream(content);
    setNumber(file, "Length1", static_cast<int>(content.size()));
    setObject(descriptor, "FontFile2", file);
    return descriptor;
}

HPDF_Dict Pdf::identityOrdering() const
{
    HPDF_Dict ordering = dictionary();
    setObject(ordering, "Registry", HPDF_String_New(document_->mmgr, "Adobe", nullptr));
    setObject(ordering, "Ordering", HPDF_String_New(document_->mmgr, "Identity", nullptr));
    setNumber(ordering, "Supplement", 0);
    return ordering;
}

/// One stretch of advances, from code 1 on.
HPDF_Array Pdf::widths(const std::vector<int>& advances) const
{
    HPDF_Array list = array();
    HPDF_Array stretch = array();
    require(HPDF_Array_AddNumber(list, 1));
    append(list, stretch);
    for (const int advance : advances)
        require(HPDF_Array_AddNumber(stretch, advance));
    return list;
}

void Pdf::addPage(const ReportPage& page, const std::string& content)
{
    HPDF_Page object = made(HPDF_AddPage(document_.get()));
    require(HPDF_Page_SetWidth(object, page.Width()));
    require(HPDF_Page_SetHeight(object, page.Height()));
    auto* const resources = static_cast<HPDF_Dict>(
        made(HPDF_Page_GetInheritableItem(object, "Resources", HPDF_OCLASS_DICT)));
    setObject(resources, "Font", fonts_);
    const auto* const attributes = static_cast<HPDF_PageAttr>(object->attr);
    require(HPDF_Stream_Write(attributes->stream,
                              reinterpret_cast<const HPDF_BYTE*>(content.data()),
                              static_cast<HPDF_UINT>(content.size())));
}

std::string Pdf::bytes()
{
    require(HPDF_SaveToStream(document_.get()));
    HPDF_UINT32 size = HPDF_GetStreamSize(document_.get());
    std::string bytes(size, '\0');
    require(
        HPDF_ReadFromStream(document_.get(), reinterpret_cast<HPDF_BYTE*>(bytes.data()), &size));
    bytes.resize(size);
    require(HPDF_GetError(document_.get()));
    return bytes;
}

} // namespace

std::string pdfOf(const ReportDocument& document)
{
    if (document.Pages().Count() == 0)
        throw Error(errors::kInvalidCall);
    UsedFonts fonts;
    Pdf pdf;
    pdf.setInformation("Title", document.Title());
    pdf.setInformation("Subject", document.Subject());
    pdf.setInformation("Author", document.Author());
    pdf.setInformation("Creator", document.Creator());
    for (const ReportPage& page : document.Pages())
        pdf.addPage(page, pageContent(page, fonts));
    pdf.addFonts(fonts);
    return pdf.bytes();
}

} // namespace k7deval
