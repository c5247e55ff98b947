int x_vista_test();
