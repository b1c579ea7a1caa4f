// An empty Qt window, of the size of the login: what the start of the program is compared with.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QWidget fenetre;
    fenetre.resize(752, 376);
    fenetre.show();
    return QApplication::exec();
}
