/* What every page of the shop does for its visitors beside its own script: words in the page's language,
   names for the fields and pictures that come without one, and the states of the buttons. */
(function () {
  'use strict';

  const WORDS = {
    en: {
      skip: 'Skip to content', home: 'Home', back: 'Back', add: 'Add to cart', picture: 'Picture',
      card: 'Order by card', mail: 'Order by e-mail or fax'
    },
    fr: {
      skip: 'Aller au contenu', home: 'Accueil', back: 'Retour', add: 'Ajouter au panier', picture: 'Photo',
      card: 'Commander par carte', mail: 'Commander par e-mail ou fax',
      billing: 'Adresse de facturation', shipping: 'Adresse de livraison',
      same: 'Laisser vide si elle est identique \u00e0 l\u2019adresse de facturation.',
      first: 'Pr\u00e9nom', last: 'Nom', address: 'Adresse', address2: 'Compl\u00e9ment d\u2019adresse', city: 'Ville',
      province: 'R\u00e9gion / Province', zip: 'Code postal', phone: 'T\u00e9l\u00e9phone', fax: 'Fax', email: 'E-mail',
      payment: 'Mode de paiement', paychoose: 'Choisissez un mode de paiement', paycod: 'Contre remboursement',
      paycheque: 'Ch\u00e8que', paypickup: 'Retrait sur place', payfax: 'Par fax', payother: 'Autre',
      comments: 'Remarques', comment: 'Votre remarque'
    },
    de: {
      skip: 'Zum Inhalt', home: 'Startseite', back: 'Zur\u00fcck', add: 'In den Warenkorb', picture: 'Bild',
      card: 'Per Karte bestellen', mail: 'Per E-Mail oder Fax bestellen'
    },
    nl: {
      skip: 'Naar de inhoud', home: 'Home', back: 'Terug', add: 'In winkelwagen', picture: 'Foto',
      card: 'Bestellen met kaart', mail: 'Bestellen per e-mail of fax'
    },
    it: {
      skip: 'Vai al contenuto', home: 'Home', back: 'Indietro', add: 'Aggiungi al carrello', picture: 'Foto',
      card: 'Ordina con carta', mail: 'Ordina per e-mail o fax'
    },
    es: {
      skip: 'Ir al contenido', home: 'Inicio', back: 'Volver', add: 'A\u00f1adir al carrito', picture: 'Foto',
      card: 'Pedir con tarjeta', mail: 'Pedir por correo electr\u00f3nico o fax'
    }
  };
  const words = { ...WORDS.en, ...WORDS[document.documentElement.lang.slice(0, 2).toLowerCase()] };

  const all = (selector, within) => Array.from((within || document).querySelectorAll(selector));
  const text = element => element ? element.textContent.trim() : '';

  function translate() {
    all('[data-word]').forEach(element => {
      const word = words[element.dataset.word];
      if (!word) { return; }
      if ('alt' in element) { element.alt = word; } else { element.textContent = word; }
    });
  }

  /* A shop without a logo shows its name instead. */
  function logoName() {
    const logo = document.querySelector('.logo img');
    if (!logo || !logo.src.endsWith('/spacer.gif')) { return; }
    const name = document.createElement('span');
    name.className = 'shopname';
    name.textContent = logo.alt;
    logo.replaceWith(name);
  }

  function skipLink() {
    if (!document.getElementById('content')) { return; }
    const link = document.createElement('a');
    link.href = '#content';
    link.className = 'skip';
    link.textContent = words.skip;
    document.body.prepend(link);
  }

  function searchField() {
    const form = document.forms.form_search;
    if (!form) { return; }
    form.setAttribute('role', 'search');
    form.elements.sw.setAttribute('aria-label', form.querySelector('[type=submit]').value);
  }

  function buttonStates() {
    const names = { mouseover: 'butformx', mouseout: 'butform', mousedown: 'butformy', mouseup: 'butformx' };
    all('.butform').forEach(button => {
      Object.keys(names).forEach(type => button.addEventListener(type, () => { button.className = names[type]; }));
    });
  }

  /* The rows of a list: every cell knows its column, so that a narrow screen can show a row as a card. */
  function listRows() {
    const table = document.querySelector('.products');
    if (!table || !table.rows.length) { return; }
    const heads = Array.from(table.rows[0].cells);
    const withPicture = text(heads[0]) === '';
    table.rows[0].classList.add('heads');
    Array.from(table.rows).slice(1).forEach(row => {
      if (row.cells.length === 1) {
        row.classList.add('separator');
        return;
      }
      const columns = (withPicture ? ['photo'] : []).concat('reference', 'name', 'price', 'order');
      row.classList.add('row');
      Array.from(row.cells).forEach((cell, at) => {
        cell.classList.add(columns[at]);
        cell.dataset.label = text(heads[at]);
      });
      const name = text(row.querySelector('.name'));
      all('a img', row).forEach(picture => { picture.alt = name; });
      all('[name=QUANTITY]', row).forEach(field => {
        field.setAttribute('aria-label', text(heads[heads.length - 1]) + ', ' + name);
        field.inputMode = 'decimal';
      });
      all('[name=add1]', row).forEach(button => { button.alt = words.add + ': ' + name; });
    });
  }

  function productPictures() {
    const big = document.images.bigimage;
    if (!big) { return; }
    const links = all('#table6 a');
    const mark = () => links.forEach(link => {
      link.toggleAttribute('aria-current', link.getAttribute('href') === big.getAttribute('src'));
    });
    big.alt = text(document.querySelector('h1'));
    links.forEach((link, at) => {
      link.firstElementChild.alt = words.picture + ' ' + (at + 1);
      link.addEventListener('click', mark);
    });
    mark();
  }

  function shippingChoice() {
    const choice = document.querySelector('[name=Ship_cost]');
    if (choice) { choice.setAttribute('aria-label', text(choice.closest('tr').cells[0])); }
  }

  /* Buying happens on the list: a product shows the way back to it. */
  function wayBack() {
    const product = document.querySelector('.product');
    if (!product || window.history.length < 2) { return; }
    const link = document.createElement('button');
    link.type = 'button';
    link.className = 'wayback';
    link.textContent = words.back;
    link.addEventListener('click', () => window.history.back());
    product.before(link);
  }

  translate();
  logoName();
  skipLink();
  searchField();
  listRows();
  productPictures();
  shippingChoice();
  wayBack();
  buttonStates();
}());
