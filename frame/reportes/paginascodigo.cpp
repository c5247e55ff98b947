#include "frame/reportes/paginascodigo.h"

#include <algorithm>
#include <array>

#include "frame/base/utf8.h"

namespace cuencalia {

namespace {

// clang-format off
/// Source: Unicode mapping tables of the vendors (unicode.org/Public/MAPPINGS/VENDORS). Mac OS Roman has its Windows
/// code page number.
constexpr std::array<PaginaCodigo, 8> kPaginas{{
    {1250,
        u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
        u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
        u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
        u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    {1251,
        u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
        u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
        u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
        u"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {1252,
        u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞß"
        u"àáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ"},
    {1253,
        u"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
        u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
        u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
        u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\uFFFD"},
    {1254,
        u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFD\uFFFDŸ"
        u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
        u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
        u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    {437,
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
        u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
        u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
        u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0"},
    {850,
        u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
        u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
        u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
        u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0"},
    {10000,
        u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
        u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
        u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
        u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ"},
}};
// clang-format on
static_assert(std::all_of(kPaginas.begin(), kPaginas.end(),
                          [](const PaginaCodigo& pagina) { return pagina.mitadAlta.size() == 128; }));

}  // namespace

const PaginaCodigo* BuscarPagina(int numero) {
    constexpr std::size_t kWindows1252 = 2;
    static_assert(kPaginas[kWindows1252].numero == 1252);
    const auto pagina =
        std::find_if(kPaginas.begin(), kPaginas.end(), [numero](const PaginaCodigo& p) { return p.numero == numero; });
    return pagina == kPaginas.end() ? &kPaginas[kWindows1252] : &*pagina;
}

const PaginaCodigo* PaginaDeJuego(int juego) {
    switch (juego) {
        case 1:
            return nullptr;
        case 77:
            return BuscarPagina(10000);
        case 161:
            return BuscarPagina(1253);
        case 162:
            return BuscarPagina(1254);
        case 204:
            return BuscarPagina(1251);
        case 238:
            return BuscarPagina(1250);
        case 254:
            return BuscarPagina(437);
        case 255:
            return BuscarPagina(850);
        default:
            return BuscarPagina(1252);
    }
}

char32_t Descodificar(const PaginaCodigo& pagina, unsigned char byte) {
    return byte < 0x80 ? byte : pagina.mitadAlta[byte - 0x80u];
}

std::string DeWindows1252(std::string_view bytes) {
    const PaginaCodigo& pagina = *BuscarPagina(1252);
    std::string texto;
    for (const char byte : bytes) {
        AgregarUtf8(texto, Descodificar(pagina, static_cast<unsigned char>(byte)));
    }
    return texto;
}

}  // namespace cuencalia
