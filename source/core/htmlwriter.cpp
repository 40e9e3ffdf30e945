#include "core/htmlwriter.h"

namespace wifiondivo {

namespace {

const struct {
    const char* opening;
    const char* closing;
} RowForms[] = {
    {"\t<tr> ", "</font></tr>\n"}, // HeaderRow
    {"\t<tr>", "</font></tr>\n"},  // DataRow
    {"\t<tr>", " </font></tr>\n"}, // AccessPointRow
};

} // namespace

void beginTable(FILE* file, int fontSize, const std::string& title)
{
    std::fprintf(file,
        "\n<br><font size=%d> <a  style=\"color:blue;\"> %s </a> </font> </br>\n"
        "<table border=\"1\">\n",
        fontSize, title.c_str());
}

void writeRow(FILE* file, RowKind kind, int fontSize, std::initializer_list<std::string> cells)
{
    std::fprintf(file, "%s<font size=\"%d\"> ", RowForms[kind].opening, fontSize);
    for (const std::string& cell : cells)
        std::fprintf(file, "<td>%s</td>", cell.c_str());
    std::fputs(RowForms[kind].closing, file);
}

void endTable(FILE* file)
{
    std::fputs("</table>", file);
}

void writePicture(FILE* file, const std::string& path)
{
    std::fprintf(file, "<br> <img src=\"%s\" /> </br>\n", path.c_str());
}

} // namespace wifiondivo
