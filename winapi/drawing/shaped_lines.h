// Lines of text that are shaped once: which glyphs they have, and what they cover.
#pragma once

#include <QGlyphRun>
#include <QList>
#include <QRect>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace winapi {

// Places are relative to the upper left corner of the line, in logical units.
struct ShapedLine
{
    QString text;
    int width = 0;
    QRect mark;              // the line below a letter; empty for none
    QList<QGlyphRun> glyphs; // on the base line; empty if Qt is to draw the text itself
    QRect ink;               // what the glyphs cover
};
using ShapedLinePtr = std::shared_ptr<const ShapedLine>;

// The glyphs of a text that begins at 0, 0 of its base line. None where a font draws more than glyphs.
QList<QGlyphRun> shapeGlyphs(const QString& text, const QFont& font);
QRect inkOf(const QList<QGlyphRun>& glyphs);

// The lines of one font, by the bytes that they were made of.
class KeptLines
{
public:
    // What ampersands are: marks of letters, or letters.
    enum Form
    {
        Marked,
        Plain,
        kForms
    };

    template <class Make>
    ShapedLinePtr get(std::string_view text, Form form, Make make)
    {
        Lines& lines = m_lines[form];
        if (const auto found = lines.find(text); found != lines.end())
            return found->second;
        ShapedLinePtr line = make();
        if (text.size() <= kLongestText) {
            if (lines.size() == kMostLines)
                lines.clear();
            lines.emplace(text, line);
        }
        return line;
    }

private:
    // A month has some sixty texts in a font. Longer texts are rare.
    static constexpr std::size_t kMostLines = 256;
    static constexpr std::size_t kLongestText = 64;

    struct Hash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };
    using Lines = std::unordered_map<std::string, ShapedLinePtr, Hash, std::equal_to<>>;

    std::array<Lines, kForms> m_lines;
};

}
