/*{"CREDIT": "by Jürgen"}*/
void main() {}
