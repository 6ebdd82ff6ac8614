#version 120
// by /*{ nobody
/* licence {} */
/** {
    "CREDIT": "*/ \"us\" // é \u00e9 \ud83d\ude00 ü", // trailing, {
    "CATEGORIES": ["a", /* nested */ "b", ],
} notes } */ void main() {} // /*{}*/
