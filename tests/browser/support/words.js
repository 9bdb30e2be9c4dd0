/** What a shop says to its visitors, as they must read it. */
export const SAYS = {
  FR: {
    products: 'Produits', cart: 'Panier', added: 'ajouté à votre panier.',
    full: 'Désolé, votre panier est plein. Veuillez passer à la commande.',
    tooLittle: 'Le montant de votre commande est inférieur au minimum de commande.',
    remove: 'Cliquez sur « OK » pour retirer ce produit de votre panier.', wrongQuantity: 'Quantité non valide.',
    order: 'Passer la commande', subtotal: 'SOUS-TOTAL', shipping: 'LIVRAISON', total: 'TOTAL'
  },
  EN: {
    products: 'Products', cart: 'Cart', added: 'added to your shopping cart.',
    full: 'Sorry, your cart is full. Please proceed to checkout.',
    tooLittle: 'Your order is below the minimum order amount.',
    remove: 'Click OK to remove this product from your shopping cart.', wrongQuantity: 'Invalid quantity.',
    order: 'Proceed to checkout', subtotal: 'SUBTOTAL', shipping: 'SHIPPING', total: 'TOTAL'
  }
};
