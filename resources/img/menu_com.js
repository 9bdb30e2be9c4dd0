/* The menu of the shop: builds a navigation from the settings and the Menu... arrays of exmplmenu_var.js.
   It works by mouse, by touch and by keyboard, drops down on a wide screen and folds on a narrow one. */
(function () {
  'use strict';

  /* A name that breaks the script of entries leaves no settings: the page then stands without a menu. */
  if (typeof window.NoOffFirstLineMenus === 'undefined') { return; }

  const NAMES = { es: 'Men\u00fa', de: 'Men\u00fc' };
  const NARROW = window.matchMedia('(max-width: 720px)');
  const setting = (name, otherwise) => window[name] === undefined ? otherwise : window[name];
  const hook = name => { if (typeof window[name] === 'function') { window[name](); } };
  const arrows = setting('Arrws', []);
  const delay = setting('DissapearDelay', 1000);
  let opened = false;
  let closing = 0;

  /* ---- building ---- */

  /* A count may be larger than the entries that exist, since it also counts what the merchant left out. */
  function entries(prefix, most) {
    const found = [];
    for (let i = 1; i <= most; i += 1) {
      const entry = window[prefix + i];
      if (Array.isArray(entry)) { found.push({ key: prefix + i, text: entry[0], link: entry[1], most: entry[3] }); }
    }
    return found;
  }

  function arrow(first, className) {
    const picture = document.createElement('img');
    picture.src = arrows[first];
    picture.width = arrows[first + 1];
    picture.height = arrows[first + 2];
    picture.alt = '';
    picture.className = className;
    return picture;
  }

  function heading(entry, level, list) {
    const head = document.createElement(list ? 'button' : entry.link ? 'a' : 'span');
    head.className = 'entry';
    head.append(entry.text);
    if (list) {
      head.type = 'button';
      head.setAttribute('aria-expanded', 'false');
      head.setAttribute('aria-controls', list.id);
      if (setting('ShowArrow', 1) && arrows.length >= 9) {
        head.append(level === 1 ? arrow(3, 'down') : arrow(0, 'aside'));
        if (level > 1) { head.append(arrow(6, 'back')); }
      }
    } else if (entry.link) {
      head.href = entry.link;
      if (entry.link === window.location.pathname.split('/').pop()) { head.setAttribute('aria-current', 'page'); }
    }
    return head;
  }

  function level(found, depth) {
    const list = document.createElement('ul');
    list.className = 'level' + depth;
    found.forEach(entry => {
      const item = document.createElement('li');
      const children = entries(entry.key + '_', entry.most);
      const below = children.length ? level(children, depth + 1) : null;
      if (below) { below.id = entry.key + '_list'; }
      item.append(heading(entry, depth, below));
      if (below) { item.append(below); }
      list.append(item);
    });
    return list;
  }

  function dress(nav) {
    const size = name => setting(name, 0) + 'px';
    const values = {
      'low': setting('LowBgColor'), 'high': setting('HighBgColor'),
      'low-font': setting('FontLowColor'), 'high-font': setting('FontHighColor'),
      'low-sub': setting('LowSubBgColor'), 'high-sub': setting('HighSubBgColor'),
      'low-sub-font': setting('FontSubLowColor'), 'high-sub-font': setting('FontSubHighColor'),
      'border': setting('BorderColor'), 'border-sub': setting('BorderSubColor'),
      'border-width': size('BorderWidth'), 'between': size('BorderBtwnElmnts'),
      'family': setting('FontFamily'), 'size': setting('FontSize', 9) + 'pt',
      'weight': setting('FontBold') ? 'bold' : 'normal', 'style': setting('FontItalic') ? 'italic' : 'normal',
      'align': setting('MenuTextCentered'), 'left': size('LeftPaddng'), 'top': size('TopPaddng')
    };
    Object.keys(values).forEach(name => nav.style.setProperty('--menu-' + name, values[name]));
    const first = window.Menu1 || [];
    const second = window.Menu2_1 || [];
    nav.style.setProperty('--menu-height', (first[4] || 20) + 'px');
    nav.style.setProperty('--menu-width', (first[5] || 138) + 'px');
    nav.style.setProperty('--menu-width-sub', (second[5] || 150) + 'px');
    nav.classList.toggle('keep', Boolean(setting('KeepHilite', 1)));
  }

  hook('BeforeStart');

  const nav = document.createElement('nav');
  const bar = level(entries('Menu', setting('NoOffFirstLineMenus', 0)), 1);
  const fold = document.createElement('button');
  bar.id = 'menu_list';
  fold.type = 'button';
  fold.className = 'fold';
  fold.textContent = NAMES[document.documentElement.lang.slice(0, 2).toLowerCase()] || 'Menu';
  fold.setAttribute('aria-expanded', 'false');
  fold.setAttribute('aria-controls', bar.id);
  nav.className = 'menu';
  nav.setAttribute('aria-label', fold.textContent);
  nav.append(fold, bar);
  dress(nav);

  /* The frame of the first line is a place in the page; without it the menu stands where the script does. */
  const place = document.getElementById(setting('FirstLineFrame', ''));
  if (place) { place.append(nav); } else { document.currentScript.before(nav); }

  hook('AfterBuild');

  /* ---- opening and closing ---- */

  const headOf = item => item.firstElementChild;
  const listOf = item => item.querySelector(':scope > ul');
  const isOpen = item => headOf(item).getAttribute('aria-expanded') === 'true';
  const openItems = within => Array.from(within.querySelectorAll('li')).filter(isOpen);

  function close(item) {
    openItems(item).concat(item).forEach(one => {
      if (listOf(one)) { headOf(one).setAttribute('aria-expanded', 'false'); }
      delete one.dataset.pinned;
    });
  }

  function closeAll() {
    window.clearTimeout(closing);
    const before = openItems(nav);
    before.forEach(close);
    if (before.length) { hook('AfterCloseAll'); }
  }

  function open(item) {
    if (!listOf(item) || isOpen(item)) { return; }
    if (!opened) {
      opened = true;
      hook('BeforeFirstOpen');
    }
    Array.from(item.parentElement.children).forEach(other => { if (other !== item) { close(other); } });
    headOf(item).setAttribute('aria-expanded', 'true');
    /* A list that would leave the screen unfolds to the other side. */
    item.classList.remove('leftward');
    if (setting('MenuWrap', 1) && listOf(item).getBoundingClientRect().right > document.documentElement.clientWidth) {
      item.classList.add('leftward');
    }
  }

  function toggleFold(wanted) {
    fold.setAttribute('aria-expanded', String(wanted));
    if (!wanted) { closeAll(); }
  }

  fold.addEventListener('click', () => toggleFold(fold.getAttribute('aria-expanded') !== 'true'));

  nav.addEventListener('click', event => {
    const head = event.target.closest('button.entry');
    if (!head) { return; }
    const item = head.parentElement;
    /* The pointer has opened it already: the first click keeps it open. */
    if (isOpen(item) && (item.dataset.pinned || NARROW.matches || event.detail === 0)) {
      close(item);
      return;
    }
    open(item);
    item.dataset.pinned = 'true';
  });

  /* ---- mouse ---- */

  nav.querySelectorAll('li').forEach(item => {
    item.addEventListener('pointerenter', event => {
      if (event.pointerType !== 'mouse' || NARROW.matches) { return; }
      window.clearTimeout(closing);
      Array.from(item.parentElement.children).forEach(other => { if (other !== item) { close(other); } });
      open(item);
    });
  });

  nav.addEventListener('pointerenter', () => window.clearTimeout(closing));
  nav.addEventListener('pointerleave', event => {
    if (event.pointerType === 'mouse' && !NARROW.matches) { closing = window.setTimeout(closeAll, delay); }
  });

  document.addEventListener('pointerdown', event => {
    if (!nav.contains(event.target)) { closeAll(); }
  });

  /* ---- keyboard ---- */

  function step(item, by) {
    const heads = Array.from(item.parentElement.children).map(headOf).filter(head => head.tagName !== 'SPAN');
    const at = heads.indexOf(headOf(item));
    heads[(at + by + heads.length) % heads.length].focus();
  }

  function enter(item) {
    open(item);
    if (listOf(item)) { listOf(item).querySelector('.entry').focus(); }
  }

  function leave(item) {
    const parent = item.parentElement.closest('li');
    if (!parent) { return; }
    close(parent);
    headOf(parent).focus();
  }

  nav.addEventListener('keydown', event => {
    const head = event.target.closest('.entry');
    if (event.key === 'Escape') {
      const around = head && head.parentElement;
      if (around && isOpen(around)) {
        close(around);
      } else if (around && around.parentElement.closest('li')) {
        leave(around);
      } else if (NARROW.matches) {
        toggleFold(false);
        fold.focus();
      } else {
        closeAll();
      }
      return;
    }
    if (!head || event.altKey || event.ctrlKey || event.metaKey) { return; }
    const item = head.parentElement;
    const across = item.parentElement === bar && !NARROW.matches && setting('FirstLineHorizontal', 1);
    const moves = across
      ? { ArrowRight: () => step(item, 1), ArrowLeft: () => step(item, -1), ArrowDown: () => enter(item) }
      : { ArrowDown: () => step(item, 1), ArrowUp: () => step(item, -1), ArrowRight: () => enter(item), ArrowLeft: () => leave(item) };
    moves.Home = () => item.parentElement.firstElementChild.firstElementChild.focus();
    moves.End = () => item.parentElement.lastElementChild.firstElementChild.focus();
    if (moves[event.key]) {
      event.preventDefault();
      moves[event.key]();
    }
  });

  nav.addEventListener('focusout', event => {
    if (event.relatedTarget && !nav.contains(event.relatedTarget)) { closeAll(); }
  });
}());
