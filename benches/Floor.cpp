#include "benches/Floor.h"

#include "platform/StoreText.h"

#include <sqlite3.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

namespace {

struct Statement {
    Statement(sqlite3 *db, const char *sql)
    {
        if (sqlite3_prepare_v2(db, sql, -1, &handle, nullptr) != SQLITE_OK) {
            std::fprintf(stderr, "%s: %s\n", sql, sqlite3_errmsg(db));
            std::exit(1);
        }
    }
    ~Statement() { sqlite3_finalize(handle); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    void start(sqlite3_int64 a)
    {
        sqlite3_reset(handle);
        sqlite3_bind_int64(handle, 1, a);
    }
    bool next() { return sqlite3_step(handle) == SQLITE_ROW; }
    std::string text(int column) const
    {
        const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(handle, column));
        return bytes ? std::string(bytes, size_t(sqlite3_column_bytes(handle, column))) : std::string();
    }
    sqlite3_int64 number(int column) const { return sqlite3_column_int64(handle, column); }

    sqlite3_stmt *handle = nullptr;
};

/// UTF-8 to one byte a character; enough for the texts of the bench.
std::string encoded(const std::string &text)
{
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size();) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (c < 0x80) {
            out += text[i++];
        } else if (c < 0xE0) {
            out += char(((c & 0x03) << 6) | (text[i + 1] & 0x3F));
            i += 2;
        } else {
            out += char(0x92);
            i += 3;
        }
    }
    return out;
}

void writeFile(const std::string &path, const std::string &bytes)
{
    std::FILE *file = std::fopen(path.c_str(), "wb");
    if (!file || std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fclose(file) != 0) {
        std::perror(path.c_str());
        std::exit(1);
    }
}

std::string readFile(const std::string &path)
{
    std::string bytes(std::filesystem::file_size(path), '\0');
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (!file || std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size() || std::fclose(file) != 0) {
        std::perror(path.c_str());
        std::exit(1);
    }
    return bytes;
}

std::string withoutTags(const std::string &html)
{
    std::string out;
    bool inTag = false;
    for (const char c : html) {
        if (c == '<')
            inTag = true;
        else if (c == '>')
            inTag = false;
        else if (!inTag && c != '\r' && c != '\n' && c != '\'' && c != '-')
            out += c;
    }
    return out;
}

struct Product {
    sqlite3_int64 id;
    std::string reference, name, price, description;
};

std::vector<Product> productsOf(Statement &statement, sqlite3_int64 family)
{
    std::vector<Product> products;
    statement.start(family);
    while (statement.next())
        products.push_back(
            {statement.number(0), statement.text(1), statement.text(2), statement.text(3), statement.text(4)});
    return products;
}

} // namespace

size_t Floor::generate(const std::string &store, const std::string &out, const Pieces &pieces, bool pictures)
{
    sqlite3 *db = nullptr;
    if (sqlite3_open(store.c_str(), &db) != SQLITE_OK || !StoreText::install(db))
        std::exit(1);
    std::filesystem::create_directories(out + "/images");
    size_t total = 0;
    std::string search;
    {
        Statement families(db, "SELECT DISTINCT idFamille, idCategorie FROM T_PRODUIT WHERE idFamille > ?");
        Statement list(
            db, "SELECT idProduit, sRef, sNomFR, sPrixVenteTTC, sObservationFR FROM T_PRODUIT WHERE idFamille = ?");
        Statement images(db, "SELECT sImage FROM T_PRODUIT_IMAGE WHERE idProduit = ?");
        Statement labels(db, "SELECT idRef_Categorie, sLibelle FROM REF_CATEGORIE_P WHERE idRef_parent = ?");
        Statement values(db, "SELECT idRef_Categorie, sValeur FROM REF_EXTENSION WHERE idRef_Produit = ?");
        const auto finish = [&](const std::string &name, const std::string &page) {
            const std::string bytes = encoded(page);
            writeFile(out + "/" + name, bytes);
            search += "array_files[0]=new Array(0,\"HTM\",\"" + name + "\",\"\",\"\",\"\",\"" + withoutTags(bytes)
                      + "\");\r\n";
            total += bytes.size();
        };
        families.start(0);
        while (families.next()) {
            const sqlite3_int64 family = families.number(0);
            std::string rows;
            std::vector<std::string> captions;
            labels.start(family);
            while (labels.next())
                captions.push_back(labels.text(1));
            for (const Product &p : productsOf(list, family)) {
                std::string table;
                size_t n = 0;
                values.start(p.id);
                while (values.next() && n < captions.size())
                    table += "<tr>\r\n<td width=\"250\" bgcolor=\"#CCCCFF\"><b>" + captions[n++]
                             + "</b></td>\r\n<td bgcolor=\"#CCCCFF\">" + values.text(1) + "</td>\r\n</tr>\r\n";
                images.start(p.id);
                while (images.next()) {
                    const std::string path = images.text(0);
                    if (pictures) {
                        const std::string bytes = readFile(path);
                        writeFile(out + "/images" + path.substr(path.rfind('/')), bytes);
                        total += bytes.size();
                    }
                }
                std::string file = p.reference;
                std::erase(file, '/');
                rows += pieces.row + p.reference + p.name + p.price;
                finish(file + ".htm", pieces.productHead + p.name + p.description + table + pieces.productTail);
            }
            finish("g" + std::to_string(families.number(1)) + "_s" + std::to_string(family) + ".htm",
                   pieces.listHead + rows + pieces.listTail);
        }
        writeFile(out + "/searchdb.js", search);
        total += search.size();
    }
    sqlite3_close(db);
    return total;
}

double Floor::copyBytes(const std::string &shop, const std::string &out)
{
    std::filesystem::create_directories(out + "/images");
    std::vector<std::pair<std::string, std::string>> files;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(shop))
        if (entry.is_regular_file())
            files.emplace_back(std::filesystem::relative(entry.path(), shop).string(), readFile(entry.path().string()));
    const auto start = std::chrono::steady_clock::now();
    for (const auto &[name, bytes] : files)
        writeFile(out + "/" + name, bytes);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
