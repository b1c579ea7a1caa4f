#pragma once

#include <vector>

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

namespace essais {

/// What the shell is asked to open, by scheme.
class Navigateur : public QObject {
    Q_OBJECT

  public:
    Navigateur() {
        for (const char* protocole : {"http", "https", "file"})
            QDesktopServices::setUrlHandler(protocole, this, "ouvrir");
    }
    Navigateur(const Navigateur&) = delete;
    Navigateur& operator=(const Navigateur&) = delete;
    ~Navigateur() override {
        for (const char* protocole : {"http", "https", "file"})
            QDesktopServices::unsetUrlHandler(protocole);
    }
    std::vector<QUrl> ouvertures;

  public slots:
    void ouvrir(const QUrl& adresse) { ouvertures.push_back(adresse); }
};

}  // namespace essais
