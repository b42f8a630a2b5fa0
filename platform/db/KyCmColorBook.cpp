#include "db/KyCmColorBook.h"

#include <vector>

namespace {

struct Book {
    KyString name;  // empty: the colours without a book
    std::vector<KyCmColor> colors;
};

std::vector<Book>& books() {
    static auto* s_books = new std::vector<Book>();
    return *s_books;
}

const wchar_t* bookKey(const wchar_t* bookName) {
    return bookName != nullptr ? bookName : L"";
}

Book* findBook(const wchar_t* bookName) {
    for (Book& book : books()) {
        if (book.name.compareNoCase(bookKey(bookName)) == 0) {
            return &book;
        }
    }
    return nullptr;
}

}  // namespace

Kyro::ErrorStatus KyCmColorBook::addColor(const KyCmColor& color) {
    if (!color.isByColor() || !color.hasColorName()) {
        return Kyro::eInvalidInput;
    }
    Book* book = findBook(color.bookName());
    if (book == nullptr) {
        books().push_back(Book{KyString(color.bookName()), {}});
        book = &books().back();
    }
    for (KyCmColor& known : book->colors) {
        if (KyString(known.colorName()).compareNoCase(color.colorName()) == 0) {
            known = color;
            return Kyro::eOk;
        }
    }
    book->colors.push_back(color);
    return Kyro::eOk;
}

Kyro::ErrorStatus KyCmColorBook::findColor(const wchar_t* bookName, const wchar_t* colorName,
                                           KyCmColor& color) {
    const Book* book = findBook(bookName);
    if (book == nullptr || colorName == nullptr) {
        return Kyro::eKeyNotFound;
    }
    for (const KyCmColor& known : book->colors) {
        if (KyString(known.colorName()).compareNoCase(colorName) == 0) {
            color = known;
            return Kyro::eOk;
        }
    }
    return Kyro::eKeyNotFound;
}

Kyro::ErrorStatus KyCmColorBook::findColor(const wchar_t* displayName, KyCmColor& color) {
    if (displayName == nullptr) {
        return Kyro::eKeyNotFound;
    }
    const KyString text(displayName);
    const int dollar = text.find(L'$');
    if (dollar < 0) {
        return findColor(nullptr, displayName, color);
    }
    return findColor(text.left(dollar).kwszPtr(), displayName + dollar + 1, color);
}

KyStringArray KyCmColorBook::bookNames() {
    KyStringArray names;
    for (const Book& book : books()) {
        if (!book.name.isEmpty()) {
            names.append(book.name);
        }
    }
    return names;
}

KyStringArray KyCmColorBook::colorNames(const wchar_t* bookName) {
    KyStringArray names;
    if (const Book* book = findBook(bookName)) {
        for (const KyCmColor& color : book->colors) {
            names.append(KyString(color.colorName()));
        }
    }
    return names;
}

void KyCmColorBook::clear() {
    books().clear();
}
