// The report as a spreadsheet (.xlsx): the head's data in cells, the materials as numbers
// with their mask and unit, then each picture placed on the sheet at its screen size (the
// PNG carries its print resolution, which the sheet honours), one printed page each.

#include <xlsxwriter.h>

#include <cmath>
#include <vector>

#include "output/EscritoresInforme.h"

namespace trevalo {

namespace {

constexpr double AltoFilaPixeles = 20; // the sheet's default row height
constexpr lxw_row_t FilasPorGrafico =
    static_cast<lxw_row_t>(AltoGraficoPantalla / AltoFilaPixeles) + 3;

struct Formatos {
    lxw_format* titulo;
    lxw_format* subtitulo;
    lxw_format* etiqueta;
    lxw_format* valor;
    lxw_format* leyenda;
};

Formatos CrearFormatos(lxw_workbook* libro) {
    Formatos f{};
    f.titulo = workbook_add_format(libro);
    format_set_bold(f.titulo);
    format_set_font_size(f.titulo, 14);
    f.subtitulo = workbook_add_format(libro);
    format_set_font_color(f.subtitulo, 0x555555);
    f.etiqueta = workbook_add_format(libro);
    format_set_font_color(f.etiqueta, 0x555555);
    format_set_bottom(f.etiqueta, LXW_BORDER_HAIR);
    f.valor = workbook_add_format(libro);
    format_set_bottom(f.valor, LXW_BORDER_HAIR);
    format_set_align(f.valor, LXW_ALIGN_LEFT);
    f.leyenda = workbook_add_format(libro);
    format_set_bold(f.leyenda);
    return f;
}

// A number cell with its display mask, kept apart per mask.
lxw_format* FormatoNumero(lxw_workbook* libro, const std::string& mascara) {
    lxw_format* f = workbook_add_format(libro);
    format_set_num_format(f, mascara.c_str());
    format_set_bottom(f, LXW_BORDER_HAIR);
    format_set_align(f, LXW_ALIGN_LEFT);
    return f;
}

} // namespace

void EscribirInformeHoja(const ContenidoInforme& c, const std::string& ruta) {
    lxw_workbook* libro = workbook_new(ruta.c_str());
    if (!libro) ErrorAccesoArchivo();
    std::string titulo = c.Generales.TiTulo;
    std::string autor = c.Generales.Calculista;
    lxw_doc_properties propiedades{};
    propiedades.title = titulo.data();
    propiedades.author = autor.data();
    workbook_set_properties(libro, &propiedades);

    lxw_worksheet* hoja = workbook_add_worksheet(libro, "Informe");
    const Formatos f = CrearFormatos(libro);
    worksheet_set_paper(hoja, 9); // A4
    worksheet_set_portrait(hoja);
    worksheet_fit_to_pages(hoja, 1, 0);
    // Rows of a stated height, so that every reader anchors the pictures alike.
    worksheet_set_default_row(hoja, 15, LXW_FALSE);
    worksheet_set_column(hoja, 0, 0, 40, nullptr);
    worksheet_set_column(hoja, 1, 1, 40, nullptr);
    worksheet_set_column(hoja, 2, 2, 10, nullptr);

    worksheet_write_string(hoja, 0, 0, titulo.c_str(), f.titulo);
    worksheet_write_string(hoja, 1, 0, "Memoria de cálculo", f.subtitulo);
    lxw_row_t fila = 3;
    for (const auto& linea : LineasCabecera(c)) {
        worksheet_write_string(hoja, fila, 0, linea.Etiqueta.c_str(), f.etiqueta);
        if (linea.Numero) {
            worksheet_write_number(hoja, fila, 1, *linea.Numero,
                                   FormatoNumero(libro, linea.Mascara));
            worksheet_write_string(hoja, fila, 2, linea.Unidad.c_str(), nullptr);
        } else {
            worksheet_write_string(hoja, fila, 1, linea.Valor.c_str(), f.valor);
        }
        ++fila;
    }

    // Each picture starts a printed page: a caption row, then the picture.
    std::vector<lxw_row_t> saltos;
    fila += 2;
    for (const auto& grafico : c.Graficos) {
        saltos.push_back(fila);
        const std::string leyenda = "Gráfico " + std::to_string(grafico.Numero);
        worksheet_write_string(hoja, fila, 0, leyenda.c_str(), f.leyenda);
        if (!grafico.Grafico.empty()) {
            lxw_image_options opciones{};
            opciones.x_scale = 1;
            opciones.y_scale = 1;
            opciones.object_position = LXW_OBJECT_DONT_MOVE_DONT_SIZE;
            opciones.description = const_cast<char*>(leyenda.c_str());
            worksheet_insert_image_buffer_opt(hoja, fila + 1, 0, grafico.Grafico.data(),
                                              grafico.Grafico.size(), &opciones);
        }
        fila += FilasPorGrafico;
    }
    saltos.push_back(0); // the list ends with a zero
    if (saltos.size() > 1) worksheet_set_h_pagebreaks(hoja, saltos.data());

    if (workbook_close(libro) != LXW_NO_ERROR) ErrorAccesoArchivo();
}

} // namespace trevalo
