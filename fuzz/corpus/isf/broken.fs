/*{"CREDIT": "us
, "INPUTS": [{]}*/ void main() {}