// generar-manual AYUDA.qhp CAPTURAS MANUAL.pdf: prints the help's topics, in the order of its
// contents, into the program's manual: a cover, a table of contents with the page of each
// chapter, and a chapter per topic starting on a new page, numbered as the contents nest them.
// A section of the contents that points into a topic (Tema.html#ancla) is a numbered heading
// of that topic's chapter. A topic shows the picture of a window where it says
// <!-- captura: NOMBRE -->, NOMBRE.png from the folder of pictures the screenshot tour made
// of the program; a picture that is not there stops the manual.

#include <QAbstractTextDocumentLayout>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QXmlStreamReader>
#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace {

struct Capitulo {
    QString numero; // "2.1"
    QString titulo;
    QString archivo;
    QString ancla; // the heading inside the topic; "" for the whole topic
};

// The widest picture: the width of the text on the page, in the pixels of a screen at 96 dpi
// in which the document measures pictures.
constexpr int AnchoImagen = 640;

// The sections of the help's contents, depth first, numbered by their nesting.
QList<Capitulo> Capitulos(const QString& proyecto) {
    QFile archivo(proyecto);
    if (!archivo.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader xml(&archivo);
    QList<Capitulo> capitulos;
    QList<int> numeros; // the number of the last section at each depth
    int profundidad = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.name() != QStringLiteral("section")) continue;
        if (xml.isEndElement()) {
            --profundidad;
            continue;
        }
        if (!xml.isStartElement()) continue;
        numeros.resize(profundidad + 1);
        ++numeros[profundidad++];
        QStringList numero;
        for (const int n : numeros) numero << QString::number(n);
        const QStringList ref =
            xml.attributes().value(QStringLiteral("ref")).toString().split(QLatin1Char('#'));
        capitulos.append({numero.join(QLatin1Char('.')),
                          xml.attributes().value(QStringLiteral("title")).toString(), ref[0],
                          ref.value(1)});
    }
    return capitulos;
}

// A window's picture (the tour draws its frame) at its size on a screen or narrowed to the text.
QString Imagen(const QString& ruta) {
    const QSize tamano = QImageReader(ruta).size();
    if (!tamano.isValid()) throw std::runtime_error("falta la captura " + ruta.toStdString());
    return QStringLiteral("<p align='center' style='margin-top:6px; margin-bottom:10px'>"
                          "<img src='%1' width='%2'></p>")
        .arg(QUrl::fromLocalFile(ruta).toString())
        .arg(std::min(tamano.width(), AnchoImagen));
}

// The body of chapter i without its own title, which the chapter heading replaces: the
// headings of its sections numbered and anchored for the contents, the pictures in place.
QString Cuerpo(const QList<Capitulo>& capitulos, qsizetype i, const QString& carpeta,
               const QString& capturas) {
    QFile archivo(carpeta + QLatin1Char('/') + capitulos[i].archivo);
    if (!archivo.open(QIODevice::ReadOnly)) return {};
    QString html = QString::fromUtf8(archivo.readAll());
    const QRegularExpression cuerpo(QStringLiteral("<body[^>]*>(.*)</body>"),
                                    QRegularExpression::DotMatchesEverythingOption);
    const auto m = cuerpo.match(html);
    if (m.hasMatch()) html = m.captured(1);
    html.remove(QRegularExpression(QStringLiteral("<h1[^>]*>.*?</h1>"),
                                   QRegularExpression::DotMatchesEverythingOption));
    for (qsizetype s = i + 1; s < capitulos.size(); ++s)
        if (capitulos[s].archivo == capitulos[i].archivo && !capitulos[s].ancla.isEmpty())
            html.replace(QStringLiteral("<a name=\"%1\"></a>").arg(capitulos[s].ancla),
                         QStringLiteral("<a name='cap%1'></a>%2 ").arg(s).arg(capitulos[s].numero));
    const QRegularExpression captura(QStringLiteral("<!-- captura: (\\S+) -->"));
    for (auto c = captura.globalMatch(html); c.hasNext();) {
        const auto marca = c.next();
        html.replace(marca.captured(0), Imagen(capturas + QLatin1Char('/') + marca.captured(1) +
                                               QStringLiteral(".png")));
    }
    return html;
}

QString Portada() {
    return QStringLiteral(
               "<div align='center'><p style='margin-top:180px; font-size:40pt; "
               "font-weight:bold; color:#1f3a5f'>TREVALO 6.0</p>"
               "<p style='font-size:18pt'>Análisis y Diseño de Vigas Continuas</p>"
               "<p style='margin-top:60px; font-size:22pt'>Manual del Programa</p>"
               "<p style='margin-top:200px; font-size:11pt'>Korvel Software<br>Versión 6.0 &#8212; "
               "%1</p></div>")
        .arg(QLocale(QLocale::Spanish).toString(QDate::currentDate(), QStringLiteral("MMMM yyyy")));
}

QString Indice(const QList<Capitulo>& capitulos, const QList<int>& paginas) {
    QString html = QStringLiteral("<h1 style='page-break-before: always'>Contenido</h1>"
                                  "<table width='100%' cellspacing='0' cellpadding='3'>");
    for (qsizetype i = 0; i < capitulos.size(); ++i) {
        const Capitulo& c = capitulos[i];
        const int nivel = int(c.numero.count(QLatin1Char('.')));
        html += QStringLiteral("<tr><td style='white-space:pre-wrap; padding-left:%1px%2'>"
                               "%3&nbsp;&nbsp;%4</td>"
                               "<td align='right'>%5</td></tr>")
                    .arg(nivel * 24)
                    .arg(nivel == 0 ? QStringLiteral("; font-weight:bold") : QString())
                    .arg(c.numero, c.titulo.toHtmlEscaped())
                    .arg(paginas.isEmpty() ? 999 : paginas[i]);
    }
    return html + QStringLiteral("</table>");
}

QString Documento(const QList<Capitulo>& capitulos, const QList<int>& paginas,
                  const QString& carpeta, const QString& capturas, const QString& estilo) {
    QString html = QStringLiteral("<html><head><style>") + estilo +
                   QStringLiteral("</style></head><body>") + Portada() + Indice(capitulos, paginas);
    for (qsizetype i = 0; i < capitulos.size(); ++i) {
        const Capitulo& c = capitulos[i];
        if (!c.ancla.isEmpty()) continue; // a heading of its topic's chapter
        html +=
            QStringLiteral("<h1 style='page-break-before: always'><a name='cap%1'></a>%2 %3</h1>")
                .arg(i)
                .arg(c.numero, c.titulo.toHtmlEscaped()) +
            Cuerpo(capitulos, i, carpeta, capturas);
    }
    return html + QStringLiteral("</body></html>");
}

// The page (from 1) on which each chapter's anchor lies.
QList<int> Paginas(QTextDocument& documento, qsizetype n) {
    QList<int> paginas(n, 0);
    const qreal alto = documento.pageSize().height();
    for (QTextBlock b = documento.begin(); b.isValid(); b = b.next())
        for (auto f = b.begin(); !f.atEnd(); ++f)
            for (const QString& ancla : f.fragment().charFormat().anchorNames())
                if (ancla.startsWith(QStringLiteral("cap"))) {
                    const qreal y = documento.documentLayout()->blockBoundingRect(b).top();
                    paginas[ancla.mid(3).toInt()] = int(y / alto) + 1;
                }
    return paginas;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication aplicacion(argc, argv);
    if (argc != 4) {
        std::cerr << "uso: generar-manual AYUDA.qhp CAPTURAS MANUAL.pdf\n";
        return 2;
    }
    const QString proyecto = QString::fromLocal8Bit(argv[1]);
    const QString carpeta = QFileInfo(proyecto).absolutePath();
    const QList<Capitulo> capitulos = Capitulos(proyecto);
    QFile css(carpeta + QStringLiteral("/estilo.css"));
    css.open(QIODevice::ReadOnly);
    const QString estilo = QString::fromUtf8(css.readAll());

    const QString capturas = QString::fromLocal8Bit(argv[2]);
    QPdfWriter pdf(QString::fromLocal8Bit(argv[3]));
    pdf.setTitle(QStringLiteral("Trevalo 6.0 - Manual del Programa"));
    pdf.setCreator(QStringLiteral("Trevalo 6.0"));
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(20, 18, 20, 22), QPageLayout::Millimeter);
    pdf.setResolution(300);
    QPainter pintor(&pdf);
    const qreal pie = pdf.resolution() * 0.35; // room for the page number
    const QSizeF pagina(pdf.width(), pdf.height() - pie);

    QTextDocument documento;
    documento.documentLayout()->setPaintDevice(&pdf);
    documento.setBaseUrl(QUrl::fromLocalFile(carpeta + QLatin1Char('/')));
    documento.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 10));
    documento.setPageSize(pagina);
    // The first layout finds the chapters' pages; the second prints them in the contents,
    // whose lines keep their length.
    try {
        documento.setHtml(Documento(capitulos, {}, carpeta, capturas, estilo));
        const QList<int> paginas = Paginas(documento, capitulos.size());
        documento.setHtml(Documento(capitulos, paginas, carpeta, capturas, estilo));
    } catch (const std::runtime_error& e) {
        std::cerr << e.what() << "\n";
        return 1;
    }

    const int total = documento.pageCount();
    for (int p = 0; p < total; ++p) {
        if (p > 0) pdf.newPage();
        pintor.save();
        pintor.translate(0, -p * pagina.height());
        documento.drawContents(&pintor, QRectF(QPointF(0, p * pagina.height()), pagina));
        pintor.restore();
        if (p == 0) continue;
        pintor.setFont(QFont(QStringLiteral("Liberation Sans"), 8));
        pintor.setPen(QColor(90, 90, 90));
        const QRectF zonaPie(0, pdf.height() - pie * 0.7, pdf.width(), pie * 0.7);
        pintor.drawText(zonaPie, Qt::AlignLeft | Qt::AlignBottom,
                        QStringLiteral("Trevalo 6.0 — Manual del Programa"));
        pintor.drawText(zonaPie, Qt::AlignRight | Qt::AlignBottom,
                        QStringLiteral("Página %1 de %2").arg(p + 1).arg(total));
    }
    pintor.end();
    std::cout << capitulos.size() << " capítulos, " << total << " páginas\n";
    return capitulos.isEmpty() ? 1 : 0;
}
