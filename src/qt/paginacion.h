#pragma once

#include <QTextBlock>

class QTextDocument;

namespace calvento {

/// On which page of its laid out document a block begins, from 0.
int paginaDeBloque(const QTextDocument& doc, const QTextBlock& b);

/// Moves what would read badly to the next page: headings at the foot of a page without what they are the heading of
/// (of a short table all of it), and rows of tables torn between two pages. The document has its page size.
void repartirEnPaginas(QTextDocument& doc);

}  // namespace calvento
