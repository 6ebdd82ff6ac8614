/*{
"CREDIT":	"u	s",
}*/
void main(){}
